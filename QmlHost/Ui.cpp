#include "QmlHost/Ui.h"

#include "QmlHost/QuietColorHandler.h"
#include "QmlHost/QuietFontHandler.h"
#include "QmlHost/QuietIconHandler.h"

#include <QGuiApplication>
#include <QScreen>

#include <utility>

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

TarnisIconHandler* newIcons(const Answers& answers, QObject* parent)
{
    const auto& [folder, mappingTable] = answers.icons.value;
    if (answers.icons.isAnswered())
        return new TarnisIconHandler(folder, mappingTable, parent);
    return new QmlHost::QuietIconHandler(parent);
}

} // namespace

namespace QmlHost
{

Ui::Ui(Resources& sharedResources, QQmlEngine& qmlEngine)
    : resources(&sharedResources)
    , engine(qmlEngine)
    , answers(sharedResources.answers())
{
    connect(resources, &Resources::answersChanged, this, &Ui::takeAnswers);
    connect(resources, &Resources::answersTaken, this, &Ui::announceAnswers);
    connect(resources, &Resources::onlyDisplaySizeChanged, this, &Ui::followDisplaySize);
    connect(resources, &Resources::languageChanged, this, &Ui::followLanguage);
    connect(resources, &Resources::languagesChanged, this, &Ui::languagesChanged);
    connect(resources, &Resources::readyChanged, this, &Ui::readyChanged);
    connect(resources, &Resources::problemChanged, this, &Ui::problemChanged);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &Ui::followScreen);
}

TarnisColorHandler* Ui::colors()
{
    if (colorHandler == nullptr)
        colorHandler = newColors(answers, this);
    return colorHandler;
}

TarnisFontHandler* Ui::fonts()
{
    if (fontHandler == nullptr)
        fontHandler = newFonts(answers, this);
    return fontHandler;
}

TarnisElementDimensionHandler* Ui::dimensions()
{
    if (dimensionHandler == nullptr) {
        const auto sizes = resources.isNull() ? answers.displaySizes.value : resources->usedDisplaySizes();
        dimensionHandler = new TarnisElementDimensionHandler(sizes, this);
    }
    return dimensionHandler;
}

TarnisTextHandler* Ui::texts()
{
    if (textHandler == nullptr)
        textHandler = newTexts();
    return textHandler;
}

TarnisIconHandler* Ui::icons()
{
    if (iconHandler == nullptr)
        iconHandler = newIcons(answers, this);
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

void Ui::takeAnswers()
{
    const Answers old = std::exchange(answers, resources->answers());
    releaseIf(answers.colorFile != old.colorFile, colorHandler, &Ui::colorsChanged);
    releaseIf(answers.fontFile != old.fontFile, fontHandler, &Ui::fontsChanged);
    releaseIf(answers.displaySizes != old.displaySizes, dimensionHandler, &Ui::dimensionsChanged);
    releaseIf(answers.icons != old.icons, iconHandler, &Ui::iconsChanged);
    const bool areTextsOutdated = answers.textFolder != old.textFolder && resources->textManager() == nullptr;
    releaseIf(areTextsOutdated, textHandler, &Ui::textsChanged);
}

void Ui::announceAnswers()
{
    const auto released = std::exchange(signalsToEmit, {});
    for (const auto emitSignal : released)
        Q_EMIT(this->*emitSignal)();
}

void Ui::followDisplaySize()
{
    release(dimensionHandler);
    Q_EMIT dimensionsChanged();
}

void Ui::followScreen(const QScreen* screen)
{
    if (screen == nullptr)
        return;
    release(fontHandler);
    release(dimensionHandler);
    Q_EMIT fontsChanged();
    Q_EMIT dimensionsChanged();
}

void Ui::followLanguage()
{
    if (!ownTextManager.isNull())
        ownTextManager->setLanguage(resources->language());
    Q_EMIT languageChanged();
}

TarnisTextHandler* Ui::newTexts()
{
    if (!resources.isNull() && resources->textManager() != nullptr)
        return new TarnisTextHandler(*resources->textManager(), this);
    ownTextManager = new TextManager(answers.textFolder.value, language());
    auto* const handler = new TarnisTextHandler(*ownTextManager, this);
    ownTextManager->setParent(handler); // so that it lives as long
    return handler;
}

template <typename Handler>
void Ui::releaseIf(bool isOutdated, Handler*& handler, void (Ui::*signal)())
{
    if (!isOutdated)
        return;
    release(handler);
    signalsToEmit.append(signal);
}

template <typename Handler>
void Ui::release(Handler*& handler)
{
    Handler* const old = std::exchange(handler, nullptr);
    if (old == nullptr)
        return;
    old->setParent(nullptr); // the garbage collector leaves children alone
    engine.newQObject(old);
}

} // namespace QmlHost
