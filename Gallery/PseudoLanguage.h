#pragma once

#include <QString>
#include <QStringList>

/// Languages whose texts are made from the English ones, so that faults of a front end show up before a translator has
/// written a text. Placeholders and markup stay as they are.
namespace Gallery::PseudoLanguage
{

/// `en_XA`, which is longer, and `ar_XB`, which is written from right to left.
QStringList names();

/// What the language is good for, such as "en_XA: longer, accented"; the name itself for any other language.
QString label(const QString& name);

/// The text with accents and in brackets: a text without its closing bracket is cut off, and one without accents does
/// not come from the resources. Texts of six characters or more become 30 to 40 % longer; shorter ones get the
/// brackets.
QString lengthened(const QString& text);

/// The text in right-to-left order, with its letters mirrored by override marks.
QString mirrored(const QString& text);

/// Writes the files of the pseudo languages beside `en.json` into the text folder, except those among `realFiles`,
/// which are paths. Returns the paths of the files; none if `en.json` is not among `realFiles`.
QStringList writeFiles(const QString& textFolder, const QStringList& realFiles);

} // namespace Gallery::PseudoLanguage
