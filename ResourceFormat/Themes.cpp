#include "ResourceFormat/Themes.h"

#include <QSet>

#include <algorithm>

namespace ResourceFormat::Themes
{

bool areThemes(const QStringList& keys, const QStringList& others)
{
    const QSet<QString> known(others.begin(), others.end());
    const auto isShared = [&known](const QString& key) { return known.contains(key); };
    const auto shared = std::count_if(keys.begin(), keys.end(), isShared);
    return 2 * shared > qMax(keys.size(), others.size());
}

} // namespace ResourceFormat::Themes
