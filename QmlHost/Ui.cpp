#include "QmlHost/Ui.h"

#include "QmlHost/QuietColorHandler.h"
#include "QmlHost/QuietFontHandler.h"
#include "QmlHost/QuietIconHandler.h"

#include <QGuiApplication>
#include <QScreen>

namespace
{

using QmlHost::Answers;

TarnisColorHandler* newColors(const Answers& answers, QObject* parent)
{
    if (answers.colorFile.isAnswered())
        return new TarnisColorHandler(answers.colorFile.value, parent);
    return new QmlHost::QuietColorHandler(parent);
}

TarnisFontHandler* newFonts(const Answers& answers, QObject* parent)
{
    if (answers.fontFile.isAnswered())
        return new TarnisFontHandler(answers.fontFile.value, parent);
    return new QmlHost::QuietFontHandler(parent);
}

TarnisElementDimensionHandler* newDimensions(const Answers& answers, QObject* parent)
{
    return new TarnisElementDimensionHandler(answers.displaySizes.value, parent);
}

TarnisIconHandler* newIcons(const Answers& answers, QObject* parent)
{
    const Answers::Icons& icons = answers.icons.value;
    if (answers.icons.isAnswered())
        return new TarnisIconHandler(icons.folder, icons.mappingTable, parent);
    return new QmlHost::QuietIconHandler(parent);
}

// A text manager needs a directory, and an empty path would be the working directory. This one contains no file.
QString noDirectory()
{
    return QStringLiteral("/dev/null");
}

} // namespace

namespace QmlHost
{

Ui::Ui(Resources& sharedResources, QQmlEngine& qmlEngine)
    : resources(&sharedResources)
    , engine(qmlEngine)
    , built(sharedResources.answers())
    , colorHandler(newColors(built, this))
    , fontHandler(newFonts(built, this))
    , dimensionHandler(newDimensions(built, this))
    , iconHandler(newIcons(built, this))
{
    replaceTexts();
    connect(resources, &Resources::answersChanged, this, &Ui::update);
    connect(resources, &Resources::languageChanged, this, &Ui::followLanguage);
    connect(resources, &Resources::languagesChanged, this, &Ui::languagesChanged);
    connect(resources, &Resources::readyChanged, this, &Ui::readyChanged);
    connect(resources, &Resources::problemChanged, this, &Ui::problemChanged);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &Ui::followScreen);
}

TarnisColorHandler* Ui::colors() const
{
    return colorHandler;
}

TarnisFontHandler* Ui::fonts() const
{
    return fontHandler;
}

TarnisElementDimensionHandler* Ui::dimensions() const
{
    return dimensionHandler;
}

TarnisTextHandler* Ui::texts() const
{
    return textHandler;
}

TarnisIconHandler* Ui::icons() const
{
    return iconHandler;
}

QString Ui::language() const
{
    return resources.isNull() ? QString() : resources->language();
}

void Ui::setLanguage(const QString& name)
{
    if (!resources.isNull())
        resources->setLanguage(name);
}

QStringList Ui::languages() const
{
    return resources.isNull() ? QStringList() : resources->languages();
}

bool Ui::isReady() const
{
    return !resources.isNull() && resources->isReady();
}

QString Ui::problem() const
{
    return resources.isNull() ? QString() : resources->problem();
}

void Ui::update()
{
    const Answers old = std::exchange(built, resources->answers());
    const bool haveColors = built.colorFile != old.colorFile;
    const bool haveFonts = built.fontFile != old.fontFile;
    const bool haveDimensions = built.displaySizes != old.displaySizes;
    const bool haveIcons = built.icons != old.icons;
    const bool haveTexts = built.textFolder != old.textFolder && resources->textManager() == nullptr;
    if (haveColors)
        replace(colorHandler, newColors(built, this));
    if (haveFonts)
        replace(fontHandler, newFonts(built, this));
    if (haveDimensions)
        replace(dimensionHandler, newDimensions(built, this));
    if (haveIcons)
        replace(iconHandler, newIcons(built, this));
    if (haveTexts)
        replaceTexts();
    if (haveColors)
        Q_EMIT colorsChanged();
    if (haveFonts)
        Q_EMIT fontsChanged();
    if (haveDimensions)
        Q_EMIT dimensionsChanged();
    if (haveIcons)
        Q_EMIT iconsChanged();
    if (haveTexts)
        Q_EMIT textsChanged();
}

void Ui::followScreen(const QScreen* screen)
{
    if (screen == nullptr)
        return;
    replace(fontHandler, newFonts(built, this));
    replace(dimensionHandler, newDimensions(built, this));
    Q_EMIT fontsChanged();
    Q_EMIT dimensionsChanged();
}

void Ui::followLanguage()
{
    if (ownTextManager != nullptr)
        ownTextManager->setLanguage(resources->language());
    Q_EMIT languageChanged();
}

void Ui::replaceTexts()
{
    if (resources->textManager() != nullptr) {
        replace(textHandler, new TarnisTextHandler(*resources->textManager(), this));
        return;
    }
    const QString directory = built.textFolder.isAnswered() ? built.textFolder.value : noDirectory();
    ownTextManager = new TextManager(directory, resources->language());
    replace(textHandler, new TarnisTextHandler(*ownTextManager, this));
    ownTextManager->setParent(textHandler); // so that it lives as long
}

template <typename Handler>
void Ui::replace(Handler*& current, Handler* fresh)
{
    Handler* const old = std::exchange(current, fresh);
    if (old == nullptr)
        return;
    old->setParent(nullptr); // otherwise the garbage collector would leave it alone
    engine.newQObject(old);
}

} // namespace QmlHost
