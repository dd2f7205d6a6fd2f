#include "Gallery/catalog/TextColumn.h"

#include "Gallery/TextPart.h"
#include "ResourceFormat/Language.h"

#include <QLocale>
#include <QSet>

#include <algorithm>

namespace Gallery
{

namespace Language = ResourceFormat::Language;

namespace
{

constexpr int longestSample = 60;

bool isEnglish(const QString& language)
{
    return QLocale(language).language() == QLocale(Language::secondFallback()).language();
}

QSet<QString> urlsOf(const TextManager& texts, const QString& language)
{
    const QStringList urls = texts.getAvailableUrls(Language::fileName(language));
    return {urls.begin(), urls.end()};
}

// Controls, formats and variation selectors change how their neighbors are drawn.
bool isDrawn(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return (character < 0xFE00 || character > 0xFE0F) && (character < 0xE0100 || character > 0xE01EF);
    }
}

} // namespace

TextColumn TextColumn::read(const TextManager& texts, const QString& language, const QStringList& urls)
{
    TextColumn column;
    column.language = language;
    column.judge(texts, urls);
    column.collectCharacters();
    column.chooseSample();
    return column;
}

void TextColumn::judge(const TextManager& texts, const QStringList& urls)
{
    const bool isTranslation = !isEnglish(language);
    const QSet<QString> own = urlsOf(texts, language);
    const QString english = Language::secondFallback();
    QSet<QString> written = own;
    for (const QString& name : Language::fallbackChain(language)) {
        // The second fallback is part of every chain, but only its own variants are written in that language.
        if (name != english || !isTranslation)
            written += urlsOf(texts, name);
    }
    cells.reserve(urls.size());
    for (const QString& url : urls)
        cells.append({texts.getText(url, language), !written.contains(url), false});
    const QSet<QString> englishUrls = urlsOf(texts, english);
    for (int index = 0; isTranslation && index < urls.size(); ++index) {
        const QString& url = urls.at(index);
        TextCell& cell = cells[index];
        cell.isIdentical = own.contains(url) && englishUrls.contains(url) && cell.text == texts.getText(url, english)
            && TextPart::hasLetters(cell.text);
    }
}

void TextColumn::collectCharacters()
{
    QSet<uint> found;
    for (const TextCell& cell : qAsConst(cells)) {
        if (cell.isMissing)
            continue;
        // Composed, because that is how a letter with a mark is drawn if the font has both.
        for (const uint character : cell.text.normalized(QString::NormalizationForm_C).toUcs4()) {
            if (isDrawn(character))
                found.insert(character);
        }
    }
    characters = {found.begin(), found.end()};
    std::sort(characters.begin(), characters.end());
}

void TextColumn::chooseSample()
{
    int most = 0;
    QString best;
    for (const TextCell& cell : qAsConst(cells)) {
        if (cell.isMissing || cell.text.size() > longestSample || cell.text.size() <= most)
            continue;
        const int different = QSet<QChar>(cell.text.begin(), cell.text.end()).size();
        const QVector<TextPart> parts = TextPart::of(cell.text);
        if (different > most && parts.size() == 1 && !parts.constFirst().isFixed) {
            most = different;
            best = cell.text;
        }
    }
    sample = QLocale(language).toString(21.5) + QStringLiteral("°  ") + best;
}

} // namespace Gallery
