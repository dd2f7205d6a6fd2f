#include "tests/recall/Device.h"

#include "Gallery/frontend/FrontEnd.h"
#include "Gallery/frontend/FrontEndInput.h"
#include "QmlHost/Answers.h"
#include "tests/support/LogRecorder.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QQuickItem>
#include <QQuickWindow>

#include <private/qquickwindow_p.h>

namespace Tests
{

namespace
{

const QStringList contexts{"defaultContext", "nightMode"};
const QStringList pagesOfTheSample{"home", "settings", "dialog"};

QList<QPointer<QQuickItem>> buttons(const QQuickWindow& window)
{
    QList<QPointer<QQuickItem>> found;
    QList<QQuickItem*> items{window.contentItem()};
    for (int index = 0; index < items.size(); ++index) {
        QQuickItem* const item = items.at(index);
        if (item->inherits("QQuickMouseArea") || item->inherits("QQuickAbstractButton"))
            found.append(item);
        items += item->childItems();
    }
    return found;
}

} // namespace

Device::Device(const QString& resources)
    : ui(TarnisUi::directory(resources))
{
    ui.publish();
    if (!ui.waitUntilReady(10000))
        qFatal("there are no resources in %s", qPrintable(resources));
}

QStringList Device::records(const QString& file)
{
    const LogRecorder recorder;
    ui.setLanguage("en");
    {
        Gallery::FrontEnd frontEnd(QUrl::fromLocalFile(file), QSize(800, 480), {{"context", contexts.first()}});
        if (frontEnd.window() == nullptr)
            return {"the front end cannot be loaded: " + frontEnd.problem()};
        const QStringList own = frontEnd.root()->property("screens").toStringList();
        for (const QString& screen : own.isEmpty() ? pagesOfTheSample : own)
            visit(frontEnd, screen);
    }
    QStringList records = LogRecorder::take();
    records.removeDuplicates();
    return records;
}

void Device::visit(Gallery::FrontEnd& frontEnd, const QString& screen)
{
    const QStringList languages = ui.languages();
    for (const QString& context : contexts) {
        frontEnd.set("context", context);
        for (const QPair<QSize, QString>& display : ui.answers().displaySizes.value) {
            ui.setDisplaySize(display.first);
            frontEnd.resize(display.first);
            frontEnd.set("screen", screen);
            settle(frontEnd);
        }
        clickButtons(frontEnd, screen);
    }
    for (const QString& language : languages) {
        ui.setLanguage(language);
        settle(frontEnd);
    }
}

// A click can lead to another page.
void Device::clickButtons(Gallery::FrontEnd& frontEnd, const QString& screen)
{
    for (const QPointer<QQuickItem>& button : buttons(*frontEnd.window())) {
        click(frontEnd, button);
        frontEnd.set("screen", screen);
        settle(frontEnd);
    }
}

void Device::click(Gallery::FrontEnd& frontEnd, const QPointer<QQuickItem>& button)
{
    if (button.isNull() || !button->isVisible())
        return;
    Gallery::FrontEndInput input;
    QFocusEvent focus(QEvent::FocusIn);
    input.pass(focus, *frontEnd.window(), 1);
    button->forceActiveFocus();
    const QPointF center = button->mapToScene({button->width() / 2, button->height() / 2});
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, center, Qt::LeftButton, held, Qt::NoModifier);
        input.pass(event, *frontEnd.window(), 1);
        settle(frontEnd);
    }
}

// Lays out the items, which creates those of lists, and deletes what is to be deleted later.
void Device::settle(Gallery::FrontEnd& frontEnd)
{
    QQuickWindowPrivate::get(frontEnd.window())->polishItems();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace Tests
