#include "Gallery/Screenshots.h"

#include "Gallery/Session.h"
#include "Gallery/frontend/FrontEndView.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>
#include <cstdio>

namespace Gallery
{

namespace
{

constexpr int mostMilliseconds = 10000;
constexpr int settleMilliseconds = 40; // time to resize the window and to lay out its items

void showProgress(int done, int all)
{
    constexpr int width = 40;
    const QByteArray bar = QByteArray(width * done / all, '#').leftJustified(width, '.');
    std::fprintf(stderr, "\r[%s] %d/%d%s", bar.constData(), done, all, done == all ? "\n" : "");
}

// Whether a part of the item or a picture in it is loaded asynchronously.
bool isLoading(const QQuickItem& item)
{
    constexpr int loading = 2; // Image.Loading and Loader.Loading
    const bool canLoad = item.inherits("QQuickImageBase") || item.inherits("QQuickLoader");
    if (canLoad && item.property("status").toInt() == loading)
        return true;
    const QList<QQuickItem*> children = item.childItems();
    return std::any_of(children.begin(), children.end(), [](const QQuickItem* child) { return isLoading(*child); });
}

void drawFrontEnd(QQuickItem& item)
{
    if (auto* const view = qobject_cast<FrontEndView*>(&item))
        view->finishDrawing();
    for (QQuickItem* child : item.childItems())
        drawFrontEnd(*child);
}

} // namespace

Screenshots::Screenshots(QQuickWindow& quickWindow, Session& gallerySession)
    : window(quickWindow)
    , session(gallerySession)
{
}

bool Screenshots::take(const QString& path)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // former pages, which would draw, too
    const QDeadlineTimer deadline(mostMilliseconds);
    QDeadlineTimer settled(settleMilliseconds);
    while (!settled.hasExpired() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, settleMilliseconds);
        if (isChanging())
            settled = QDeadlineTimer(settleMilliseconds);
    }
    if (isChanging())
        incompletePictures.append(path);
    drawFrontEnd(*window.contentItem());
    return window.isExposed() && window.grabWindow().save(path);
}

QStringList Screenshots::incomplete() const
{
    return incompletePictures;
}

bool Screenshots::isChanging() const
{
    const FrontEnd* const frontEnd = session.preview.frontEnd();
    const bool isComparing = session.comparison && session.comparison->revision() == 0;
    return !window.isExposed() || session.catalogs.isReading() || session.findings.isRunning() || isComparing
        || isLoading(*window.contentItem()) || (frontEnd != nullptr && isLoading(*frontEnd->window()->contentItem()));
}

void Screenshots::showWholeDisplay()
{
    const QSize least(800, 480);
    const QSize chrome = window.property("chrome").toSizeF().toSize();
    window.resize((session.view.displaySize() + chrome).expandedTo(least));
}

bool Screenshots::takeAll(const QString& directory)
{
    View& view = session.view;
    const QStringList displays = session.catalogs.dimensions.displays();
    const QStringList languages = session.ui.languages();
    QDir().mkpath(directory);
    const int all = view.pages().size() * displays.size() * languages.size();
    int done = 0;
    for (const QString& display : displays) {
        view.setDisplay(display);
        showWholeDisplay();
        for (const QString& language : languages) {
            session.ui.setLanguage(language);
            for (const QString& page : view.pages()) {
                view.setPage(page);
                const QString name = QStringLiteral("%1-%2-%3.png").arg(page, display, language);
                if (!take(QDir(directory).filePath(name)))
                    return false;
                showProgress(++done, all);
            }
        }
    }
    return true;
}

} // namespace Gallery
