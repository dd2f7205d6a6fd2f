#include "Gallery/catalog/TextCatalog.h"

#include "Gallery/PseudoLanguage.h"
#include "ResourceFormat/Language.h"

#include <algorithm>

namespace Gallery
{

TextCatalog::TextCatalog(const TarnisUi& tarnisUi)
    : Catalog(tarnisUi)
    , texts(std::make_shared<TextTable>())
{
    worker.setMaxThreadCount(1);
    qRegisterMetaType<std::shared_ptr<const TextTable>>("std::shared_ptr<const TextTable>");
    connect(this, &TextCatalog::tableRead, this, &TextCatalog::take, Qt::QueuedConnection);
    start();
}

QStringList TextCatalog::languages() const
{
    return languageNames;
}

QStringList TextCatalog::pseudoLanguages() const
{
    if (!languageNames.contains(ResourceFormat::Language::secondFallback()))
        return {};
    QStringList names = PseudoLanguage::names();
    for (const QString& language : languageNames)
        names.removeOne(language);
    return names;
}

QString TextCatalog::label(const QString& language) const
{
    return languageNames.contains(language) ? language : PseudoLanguage::label(language);
}

QStringList TextCatalog::urls(const QString& search, bool missingOnly) const
{
    QStringList matches;
    const QString folded = search.toCaseFolded();
    for (int index = 0; index < texts->urls.size(); ++index) {
        if (texts->searchTexts.at(index).contains(folded) && (!missingOnly || isMissingInAnyLanguage(index)))
            matches.append(texts->urls.at(index));
    }
    return matches;
}

QVariantList TextCatalog::cells(const QString& url) const
{
    QVariantList row;
    const auto found = std::lower_bound(texts->urls.begin(), texts->urls.end(), url);
    if (found == texts->urls.end() || *found != url)
        return row;
    for (const TextColumn& column : texts->columns)
        row.append(QVariant::fromValue(column.cells.at(static_cast<int>(found - texts->urls.begin()))));
    return row;
}

int TextCatalog::count() const
{
    return texts->urls.size();
}

int TextCatalog::countMissing() const
{
    return countCells(&TextCell::isMissing);
}

int TextCatalog::countIdentical() const
{
    return countCells(&TextCell::isIdentical);
}

bool TextCatalog::isReading() const
{
    return taken != requested;
}

std::shared_ptr<const TextTable> TextCatalog::table() const
{
    return texts;
}

bool TextCatalog::update(const QmlHost::Answers& old, const QmlHost::Answers& fresh)
{
    if (fresh.textFolder == old.textFolder)
        return false;
    languageNames = fresh.languages;
    worker.clear();
    worker.start(
        [this, number = ++requested, folder = fresh.textFolder.value, names = languageNames + pseudoLanguages()] {
            const auto table = std::make_shared<const TextTable>(TextTable::read(folder, names));
            Q_EMIT tableRead(number, table);
        });
    Q_EMIT languagesChanged();
    return false;
}

void TextCatalog::take(int number, const std::shared_ptr<const TextTable>& fresh)
{
    taken = number;
    texts = fresh;
    announce();
}

int TextCatalog::countCells(bool TextCell::*fact) const
{
    int sum = 0;
    for (const TextColumn& column : texts->columns) {
        if (languageNames.contains(column.language))
            sum += static_cast<int>(std::count_if(column.cells.begin(), column.cells.end(), std::mem_fn(fact)));
    }
    return sum;
}

bool TextCatalog::isMissingInAnyLanguage(int index) const
{
    return std::any_of(texts->columns.begin(), texts->columns.end(), [&](const TextColumn& column) {
        return column.cells.at(index).isMissing && languageNames.contains(column.language);
    });
}

} // namespace Gallery
