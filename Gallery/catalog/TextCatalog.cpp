#include "Gallery/catalog/TextCatalog.h"

#include "ResourceFormat/Language.h"

#include <QLocale>

#include <algorithm>

namespace Gallery
{

namespace Language = ResourceFormat::Language;

TextCatalog::TextCatalog(const TarnisUi& tarnisUi)
    : Catalog(tarnisUi)
{
    start();
}

QStringList TextCatalog::urls(const QString& search) const
{
    QStringList matches;
    for (const QString& url : urlsOf(Language::secondFallback())) {
        const auto matchesIn = [&](const QString& language) {
            return text(url, language).contains(search, Qt::CaseInsensitive);
        };
        if (url.contains(search, Qt::CaseInsensitive) || std::any_of(languages.begin(), languages.end(), matchesIn))
            matches.append(url);
    }
    return matches;
}

QString TextCatalog::text(const QString& url, const QString& language) const
{
    return textManager == nullptr ? QString() : textManager->getText(url, language);
}

bool TextCatalog::isMissing(const QString& url, const QString& language) const
{
    QStringList chain = Language::fallbackChain(language);
    // The second fallback is part of every chain, but only its own variants are written in that language.
    if (QLocale(language).language() != QLocale(Language::secondFallback()).language())
        chain.removeAll(Language::secondFallback());
    return std::none_of(chain.begin(), chain.end(), [&](const QString& name) { return urlsOf(name).contains(url); });
}

bool TextCatalog::update(const QmlHost::Answers& old, const QmlHost::Answers& fresh)
{
    if (fresh.textFolder == old.textFolder)
        return false;
    languages = fresh.languages;
    textManager = std::make_unique<TextManager>(fresh.textFolder.value, Language::secondFallback());
    return true;
}

QStringList TextCatalog::urlsOf(const QString& language) const
{
    return textManager == nullptr ? QStringList() : textManager->getAvailableUrls(Language::fileName(language));
}

} // namespace Gallery
