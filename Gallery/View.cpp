#include "Gallery/View.h"

#include "Gallery/MessageLog.h"
#include "ResourceFormat/DisplaySize.h"

#include <QClipboard>
#include <QGuiApplication>

namespace Gallery
{

namespace
{

constexpr int quietMilliseconds = 150; // after the last of several changes

} // namespace

View::View(UiResources& uiResources, MessageLog& messageLog)
    : resources(uiResources)
    , log(messageLog)
    , pageName(pages().constFirst())
    , contextName(TarnisIconHandler::defaultContextPathKey)
{
    judge(resources.answers(), log.takeNew());
    watcher.watch(resources.answers().directory());
    quietPeriod.setSingleShot(true);
    quietPeriod.setInterval(quietMilliseconds);
    connect(&watcher, &DirectoryWatcher::changed, &quietPeriod, qOverload<>(&QTimer::start));
    connect(&quietPeriod, &QTimer::timeout, this, &View::reload);
}

QStringList View::pages() const
{
    static const QStringList names{
        QStringLiteral("Device"), QStringLiteral("DeviceSettings"), QStringLiteral("DeviceDialog"),
        QStringLiteral("Colors"), QStringLiteral("Fonts"),          QStringLiteral("Dimensions"),
        QStringLiteral("Icons"),  QStringLiteral("Texts"),          QStringLiteral("Log")};
    return names;
}

QString View::page() const
{
    return pageName;
}

void View::setPage(const QString& name)
{
    if (name == pageName)
        return;
    pageName = name;
    Q_EMIT changed();
}

QString View::context() const
{
    return contextName;
}

void View::setContext(const QString& name)
{
    if (name == contextName)
        return;
    contextName = name;
    Q_EMIT changed();
}

QString View::language() const
{
    return resources.textManager().getLanguageName();
}

void View::setLanguage(const QString& name)
{
    if (name == language())
        return;
    resources.setLanguage(name);
    Q_EMIT changed();
}

QString View::display() const
{
    return displaySize().isValid() ? ResourceFormat::DisplaySize::toName(displaySize()) : QString();
}

void View::setDisplay(const QString& name)
{
    if (name == display())
        return;
    resources.setDisplaySize(ResourceFormat::DisplaySize::fromName(name));
    Q_EMIT changed();
}

QSize View::displaySize() const
{
    return resources.displaySize();
}

QString View::problem() const
{
    return problemText;
}

void View::reload()
{
    log.takeNew();
    const QString watched = resources.answers().directory();
    resources.reload([this](const ServiceAnswers& answers) {
        judge(answers, log.takeNew());
        return problemText.isEmpty() || !hasGoodView;
    });
    // There may be new directories.
    const QString directory = resources.answers().directory();
    watcher.watch(directory.isEmpty() ? watched : directory);
    Q_EMIT changed();
}

void View::copy(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    Q_EMIT copied(text);
}

void View::judge(const ServiceAnswers& answers, const QStringList& faults)
{
    problemText = answers.isReached ? faults.join(QLatin1Char('\n'))
                                    : QStringLiteral("The service Module.Tarnis cannot be reached on the system bus. "
                                                     "Start tarnis-module, then retry.");
    if (problemText.isEmpty())
        hasGoodView = true;
    else
        Q_EMIT problemFound();
}

} // namespace Gallery
