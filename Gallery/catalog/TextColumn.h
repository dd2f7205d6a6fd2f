#pragma once

#include "Common/TextTools/TextManager.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Gallery
{

/// One text in one language.
struct TextCell {
    Q_GADGET

    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(bool isMissing MEMBER isMissing)
    Q_PROPERTY(bool isIdentical MEMBER isIdentical)

public:
    QString text;             ///< As it is shown, also if another language stands in.
    bool isMissing = false;   ///< Neither the language nor the one that it is a variant of has the text.
    bool isIdentical = false; ///< The language's own text has letters, but is the English one.
};

/// All texts in one language.
struct TextColumn {
    /// Reads the texts with these URLs.
    static TextColumn read(const TextManager& texts, const QString& language, const QStringList& urls);

    QString language;
    QVector<TextCell> cells;  ///< In the order of the URLs.
    QVector<uint> characters; ///< Those that a font must draw for the texts that are not missing, each once, sorted.
    QString sample;           ///< A number and the text with the most different characters.

private:
    void judge(const TextManager& texts, const QStringList& urls);
    void collectCharacters();
    void chooseSample();
};

} // namespace Gallery

Q_DECLARE_METATYPE(Gallery::TextCell)
