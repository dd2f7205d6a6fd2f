#include "Gallery/catalog/GlyphCoverage.h"

#include <QGlyphRun>
#include <QTextLayout>

#include <algorithm>

namespace Gallery
{

namespace
{

QString toText(uint character)
{
    return QString::fromUcs4(&character, 1);
}

bool isMark(uint character)
{
    const QChar::Category category = QChar::category(character);
    return category >= QChar::Mark_NonSpacing && category <= QChar::Mark_Enclosing;
}

// Marks stand on a dotted circle, because they would be drawn over their neighbor.
QString describe(uint character)
{
    const QString circle = isMark(character) ? QString(QChar(0x25CC)) : QString();
    const QString code = QString::number(character, 16).toUpper().rightJustified(4, QLatin1Char('0'));
    return circle + toText(character) + QStringLiteral(" U+") + code;
}

} // namespace

GlyphCoverage GlyphCoverage::of(const QRawFont& family, const TextColumn& texts)
{
    GlyphCoverage coverage;
    coverage.language = texts.language;
    coverage.characters = texts.characters.size();
    QVector<uint> missingCharacters;
    std::copy_if(texts.characters.begin(), texts.characters.end(), std::back_inserter(missingCharacters),
                 [&](uint character) { return !family.supportsCharacter(character); });
    for (const uint character : qAsConst(missingCharacters))
        coverage.missing.append(describe(character));
    // Without fonts, Qt 6 would read the name of an invalid one.
    coverage.findSubstitutes(family.isValid() ? family.familyName() : QString(), missingCharacters);
    return coverage;
}

QRawFont GlyphCoverage::rawFont(const QString& family)
{
    QFont font(family);
    font.setStyleStrategy(QFont::NoFontMerging);
    return QRawFont::fromFont(font);
}

// Qt itself lays the characters out: it alone knows the families that it takes.
void GlyphCoverage::findSubstitutes(const QString& family, const QVector<uint>& missingCharacters)
{
    QString text;
    for (const uint character : missingCharacters)
        text += toText(character) + QLatin1Char(' '); // so that no two of them make one glyph
    QTextLayout layout(text, QFont(family));
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    for (const QGlyphRun& run : layout.glyphRuns()) {
        const QVector<quint32> glyphs = run.glyphIndexes();
        undrawn += static_cast<int>(std::count(glyphs.begin(), glyphs.end(), 0U));
        const QString name = run.rawFont().familyName();
        if (name != family && !substitutes.contains(name))
            substitutes.append(name);
    }
}

} // namespace Gallery
