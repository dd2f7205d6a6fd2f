#include "Gallery/Catalog.h"

#include "Gallery/Entry.h"
#include "ResourceFormat/Contrast.h"
#include "ResourceFormat/DisplaySize.h"
#include "ResourceFormat/Language.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"

#include <QColor>
#include <QFontDatabase>
#include <QFontInfo>
#include <QLocale>

#include <algorithm>

namespace Gallery
{

using namespace ResourceFormat;

namespace
{

QVariantList matching(const QVariantList& entries, const QString& search)
{
    QVariantList matches;
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(matches), [&](const QVariant& entry) {
        return entry.value<Entry>().name().contains(search, Qt::CaseInsensitive);
    });
    return matches;
}

} // namespace

Catalog::Catalog(const TarnisUi& tarnisUi)
    : ui(tarnisUi)
{
    connect(&ui, &TarnisUi::answersChanged, this, &Catalog::update);
    update();
}

int Catalog::revision() const
{
    return currentRevision;
}

QStringList Catalog::contexts() const
{
    return contextNames;
}

QStringList Catalog::displays() const
{
    return displayNames;
}

QVariantList Catalog::colors(const QString& search) const
{
    return matching(colorEntries, search);
}

QVariantList Catalog::fonts(const QString& search) const
{
    return matching(fontEntries, search);
}

QStringList Catalog::dimensions(const QString& search) const
{
    QStringList names;
    for (const QVariantMap& dimensions : dimensionsByDisplay)
        names += dimensions.keys();
    names.removeDuplicates();
    names.sort();
    return names.filter(search, Qt::CaseInsensitive);
}

QStringList Catalog::icons(const QString& search) const
{
    return QStringList(iconMap.keys()).filter(search, Qt::CaseInsensitive);
}

QStringList Catalog::texts(const QString& search) const
{
    QStringList matches;
    for (const QString& url : urls(Language::secondFallback())) {
        const auto matchesIn = [&](const QString& language) {
            return text(url, language).contains(search, Qt::CaseInsensitive);
        };
        if (url.contains(search, Qt::CaseInsensitive)
            || std::any_of(answers.languages.begin(), answers.languages.end(), matchesIn))
            matches.append(url);
    }
    return matches;
}

bool Catalog::isColor(const QString& text) const
{
    return QColor::isValidColor(text);
}

double Catalog::contrast(const QString& text, const QString& background) const
{
    if (!isColor(text) || !isColor(background))
        return 0;
    return Contrast::ratio(QColor(text), QColor(background));
}

QString Catalog::usedFamily(const QString& family) const
{
    const bool isInstalled = QFontDatabase().families().contains(family, Qt::CaseInsensitive);
    return isInstalled ? family : QFontInfo(QFont(family)).family();
}

QVariant Catalog::dimension(const QString& display, const QString& name) const
{
    return dimensionsByDisplay.value(display).value(name);
}

QString Catalog::effectiveContext(const QString& alias, const QString& context) const
{
    const TarnisIconHandler::ContextMap contexts = iconMap.value(alias);
    const auto found = TarnisIconHandler::findContext(contexts, context);
    return found == contexts.end() ? QString() : found.key();
}

QString Catalog::text(const QString& url, const QString& language) const
{
    return textManager == nullptr ? QString() : textManager->getText(url, language);
}

bool Catalog::isTextMissing(const QString& url, const QString& language) const
{
    QStringList languages = Language::fallbackChain(language);
    // The second fallback is part of every chain, but only its own variants are written in that language.
    if (QLocale(language).language() != QLocale(Language::secondFallback()).language())
        languages.removeAll(Language::secondFallback());
    return std::none_of(languages.begin(), languages.end(),
                        [&](const QString& name) { return urls(name).contains(url); });
}

QStringList Catalog::urls(const QString& language) const
{
    return textManager == nullptr ? QStringList() : textManager->getAvailableUrls(Language::fileName(language));
}

void Catalog::update()
{
    const QmlHost::Answers old = std::exchange(answers, ui.answers());
    if (answers.colorFile != old.colorFile)
        colorEntries = Entry::ofFile(answers.colorFile.value);
    if (answers.fontFile != old.fontFile)
        updateFonts();
    if (answers.displaySizes != old.displaySizes)
        updateDisplays();
    if (answers.icons != old.icons)
        updateIcons();
    if (answers.textFolder != old.textFolder)
        textManager = std::make_unique<TextManager>(answers.textFolder.value, Language::secondFallback());
    ++currentRevision;
    Q_EMIT changed();
}

void Catalog::updateFonts()
{
    fontEntries = Entry::ofFile(answers.fontFile.value);
    const auto isFamily = [](const QVariant& entry) {
        return entry.value<Entry>().key == TarnisFontHandler::familyKey;
    };
    fontEntries.erase(std::remove_if(fontEntries.begin(), fontEntries.end(), isFamily), fontEntries.end());
}

void Catalog::updateDisplays()
{
    displayNames.clear();
    dimensionsByDisplay.clear();
    for (const auto& [size, path] : qAsConst(answers.displaySizes.value)) {
        const QString display = DisplaySize::toName(size);
        displayNames.append(display);
        const QVariantList entries = Entry::ofFile(path);
        for (const QVariant& variant : entries) {
            const auto entry = variant.value<Entry>();
            dimensionsByDisplay[display].insert(entry.name(), entry.value);
        }
    }
}

void Catalog::updateIcons()
{
    const auto& [folder, mappingTable] = answers.icons.value;
    iconMap = TarnisIconHandler(folder, QStringLiteral("{}")).parseMappingTable(mappingTable);
    contextNames = QStringList(TarnisIconHandler::defaultContextPathKey);
    for (const TarnisIconHandler::ContextMap& contexts : qAsConst(iconMap))
        contextNames += contexts.keys();
    contextNames.removeDuplicates();
}

} // namespace Gallery
