#include "Gallery/GalleryView.h"

#include "Gallery/MessageLog.h"

#include <QClipboard>
#include <QGuiApplication>

namespace
{

constexpr int quietMilliseconds = 150; // after the last of several changes

} // namespace

GalleryView::GalleryView(UiResources& resources, MessageLog& log)
    : pages({QStringLiteral("Device"), QStringLiteral("DeviceSettings"), QStringLiteral("DeviceDialog"),
             QStringLiteral("Colours"), QStringLiteral("Fonts"), QStringLiteral("Dimensions"), QStringLiteral("Icons"),
             QStringLiteral("Texts"), QStringLiteral("Log")})
    , page(pages.constFirst())
    , context(TarnisIconHandler::defaultContextPathKey)
    , resources(resources)
    , log(log)
{
    judge(resources.answers(), log.takeNew());
    watcher.watch(resources.directory());
    quietPeriod.setSingleShot(true);
    quietPeriod.setInterval(quietMilliseconds);
    connect(&watcher, &DirectoryWatcher::changed, &quietPeriod, qOverload<>(&QTimer::start));
    connect(&quietPeriod, &QTimer::timeout, this, &GalleryView::reload);
}

QString GalleryView::language() const
{
    return resources.textManager().getLanguageName();
}

void GalleryView::setLanguage(const QString& name)
{
    if (name == language())
        return;
    resources.setLanguage(name);
    Q_EMIT changed();
}

QString GalleryView::display() const
{
    return displayName;
}

void GalleryView::setDisplay(const QString& name)
{
    if (name == displayName)
        return;
    displayName = name;
    const QStringList numbers = name.split(QLatin1Char('x'));
    resources.setDisplay(name.isEmpty() ? QSize() : QSize(numbers.value(0).toInt(), numbers.value(1).toInt()));
    Q_EMIT changed();
}

void GalleryView::reload()
{
    log.takeNew();
    const QString watched = resources.directory();
    resources.reload([this](const ServiceAnswers& answers) {
        judge(answers, log.takeNew());
        return problem.isEmpty() || !hasGoodView;
    });
    // New directories may have come.
    watcher.watch(resources.directory().isEmpty() ? watched : resources.directory());
    Q_EMIT changed();
}

void GalleryView::copy(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    Q_EMIT copied(text);
}

void GalleryView::judge(const ServiceAnswers& answers, const QStringList& faults)
{
    problem = answers.isReached ? faults.join(QLatin1Char('\n'))
                                : QStringLiteral("The service Module.Tarnis cannot be reached on the system bus. "
                                                 "Start tarnis-module, then ask again.");
    if (problem.isEmpty())
        hasGoodView = true;
    else
        Q_EMIT problemFound();
}
