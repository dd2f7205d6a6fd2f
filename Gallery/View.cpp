#include "Gallery/View.h"

#include "ResourceFormat/DisplaySize.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QClipboard>
#include <QGuiApplication>

namespace Gallery
{

View::View(TarnisUi& tarnisUi)
    : ui(tarnisUi)
    , pageNames{QStringLiteral("Device"), QStringLiteral("DeviceSettings"), QStringLiteral("DeviceDialog"),
                QStringLiteral("Colors"), QStringLiteral("Fonts"),          QStringLiteral("Dimensions"),
                QStringLiteral("Icons"),  QStringLiteral("Texts"),          QStringLiteral("Findings"),
                QStringLiteral("Log")}
    , pageName(pageNames.constFirst())
    , contextName(TarnisIconHandler::defaultContextPathKey)
    , themeName(themes().constFirst())
{
    connect(&ui, &TarnisUi::displaySizeChanged, this, &View::changed);
}

QStringList View::pages() const
{
    return pageNames;
}

void View::dropSampleScreens()
{
    pageNames.removeAll(QStringLiteral("DeviceSettings"));
    pageNames.removeAll(QStringLiteral("DeviceDialog"));
    Q_EMIT changed();
}

void View::addPage(const QString& name)
{
    pageNames.insert(pageNames.size() - 1, name);
    Q_EMIT changed();
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

QString View::search() const
{
    return searches.value(pageName);
}

void View::setSearch(const QString& text)
{
    if (text == search())
        return;
    searches.insert(pageName, text);
    Q_EMIT changed();
}

QString View::display() const
{
    return displaySize().isValid() ? ResourceFormat::DisplaySize::toName(displaySize()) : QString();
}

void View::setDisplay(const QString& name)
{
    ui.setDisplaySize(ResourceFormat::DisplaySize::fromName(name));
}

QSize View::displaySize() const
{
    return ui.displaySize();
}

QStringList View::themes()
{
    return {QStringLiteral("light"), QStringLiteral("dark")};
}

QString View::theme() const
{
    return themeName;
}

void View::setTheme(const QString& name)
{
    if (name == themeName)
        return;
    themeName = name;
    Q_EMIT changed();
}

QSize View::windowSize() const
{
    return initialWindowSize;
}

void View::setWindowSize(const QSize& size)
{
    if (size == initialWindowSize)
        return;
    initialWindowSize = size;
    Q_EMIT windowSizeChanged();
}

void View::reload()
{
    ui.askAgain();
}

void View::copy(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    Q_EMIT copied(text);
}

} // namespace Gallery
