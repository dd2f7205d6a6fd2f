#pragma once

#include "Gallery/catalog/TextColumn.h"

namespace Gallery
{

/// The texts of a directory in several languages. Reading takes time that grows with the number of texts; do it on a
/// worker thread.
struct TextTable {
    /// Reads the texts of all URLs that one of the languages has.
    static TextTable read(const QString& folder, const QStringList& languages);

    /// The column of the language, or null.
    const TextColumn* column(const QString& language) const;

    QStringList urls; ///< Sorted.
    QVector<TextColumn> columns;
    QStringList searchTexts; ///< By URL: the URL and its texts in all languages, without upper case.
};

} // namespace Gallery
