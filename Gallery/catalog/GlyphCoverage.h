#pragma once

#include "Gallery/catalog/TextColumn.h"

#include <QFont>
#include <QRawFont>

namespace Gallery
{

/// Which characters of a language's texts a font family can draw.
struct GlyphCoverage {
    Q_GADGET

    Q_PROPERTY(QString language MEMBER language)
    Q_PROPERTY(int characters MEMBER characters)
    Q_PROPERTY(QStringList missing MEMBER missing)
    Q_PROPERTY(QStringList substitutes MEMBER substitutes)
    Q_PROPERTY(int undrawn MEMBER undrawn)

public:
    /// `family` is the family alone, see rawFont().
    static GlyphCoverage of(const QRawFont& family, const TextColumn& texts);

    /// The family that is drawn for this one, without the families that stand in for single characters.
    static QRawFont rawFont(const QString& family);

    QString language;
    int characters = 0;      ///< How many the texts use.
    QStringList missing;     ///< Those that the family lacks, such as "é U+00E9".
    QStringList substitutes; ///< The families that draw the missing characters.
    int undrawn = 0;         ///< How many glyphs no installed family has: they are drawn as boxes or not at all.

private:
    void findSubstitutes(const QString& family, const QVector<uint>& missingCharacters);
};

} // namespace Gallery

Q_DECLARE_METATYPE(Gallery::GlyphCoverage)
