#include "Gallery/catalog/Entry.h"

#include "Common/IniTools/IniFileManager.h"

#include <algorithm>
#include <iterator>

namespace Gallery
{

QVariantList Entry::ofFile(const QString& path)
{
    QVariantList entries;
    if (path.isEmpty())
        return entries;
    const IniFileManager file(path, nullptr);
    const QList<QString> groups = file.getGroups();
    for (const QString& group : groups) {
        const QList<QString> keys = file.getChildKeys(group);
        for (const QString& key : keys)
            entries.append(QVariant::fromValue(Entry{group, key, file.getValueString(group, key, QString())}));
    }
    return entries;
}

QVariantList Entry::matching(const QVariantList& entries, const QString& search)
{
    QVariantList matches;
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(matches), [&](const QVariant& entry) {
        return entry.value<Entry>().name().contains(search, Qt::CaseInsensitive);
    });
    return matches;
}

QString Entry::name() const
{
    return group + QLatin1Char('/') + key;
}

} // namespace Gallery
