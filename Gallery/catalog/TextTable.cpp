#include "Gallery/catalog/TextTable.h"

#include "ResourceFormat/Language.h"

#include <QSet>

#include <algorithm>

namespace Gallery
{

namespace Language = ResourceFormat::Language;

TextTable TextTable::read(const QString& folder, const QStringList& languages)
{
    const TextManager texts(folder, Language::secondFallback());
    QSet<QString> urls;
    for (const QString& language : languages) {
        for (const QString& url : texts.getAvailableUrls(Language::fileName(language)))
            urls.insert(url);
    }
    TextTable table;
    table.urls = urls.values();
    table.urls.sort();
    for (const QString& language : languages)
        table.columns.append(TextColumn::read(texts, language, table.urls));
    for (int index = 0; index < table.urls.size(); ++index) {
        QString all = table.urls.at(index);
        for (const TextColumn& column : qAsConst(table.columns))
            all += QLatin1Char('\n') + column.cells.at(index).text;
        table.searchTexts.append(all.toCaseFolded());
    }
    return table;
}

const TextColumn* TextTable::column(const QString& language) const
{
    const auto isWanted = [&](const TextColumn& column) { return column.language == language; };
    const auto found = std::find_if(columns.begin(), columns.end(), isWanted);
    return found == columns.end() ? nullptr : &*found;
}

} // namespace Gallery
