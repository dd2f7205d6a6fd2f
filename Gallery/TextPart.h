#pragma once

#include <QString>
#include <QVector>

namespace Gallery
{

/// A piece of a text: either words that a translator translates, or something that every translation keeps.
struct TextPart {
    QString text;
    bool isFixed; ///< A placeholder (`%1`, `%L1`, `%n`, `{name}`), a tag or entity of markup, a tab or the end of a
                  ///< line.

    /// The text in pieces, in its order; none is empty.
    static QVector<TextPart> of(const QString& text);

    /// Whether the text has letters outside its fixed parts.
    static bool hasLetters(const QString& text);
};

} // namespace Gallery
