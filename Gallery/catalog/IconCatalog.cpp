#include "Gallery/catalog/IconCatalog.h"

#include <algorithm>

namespace Gallery
{

IconCatalog::IconCatalog(const TarnisUi& tarnisUi)
    : Catalog(tarnisUi)
{
    qRegisterMetaType<IconFile>(); // QML asks for the type by its name
    start();
}

QStringList IconCatalog::contexts() const
{
    return contextNames;
}

QStringList IconCatalog::aliases(const QString& search) const
{
    QStringList matches;
    for (auto icon = iconMap.begin(); icon != iconMap.end(); ++icon) {
        const auto contains = [&](const QString& name) { return name.contains(search, Qt::CaseInsensitive); };
        if (contains(icon.key()) || std::any_of(icon->begin(), icon->end(), contains))
            matches.append(icon.key());
    }
    return matches;
}

QString IconCatalog::effectiveContext(const QString& alias, const QString& context) const
{
    const TarnisIconHandler::ContextMap contexts = iconMap.value(alias);
    const auto found = TarnisIconHandler::findContext(contexts, context);
    return found == contexts.end() ? QString() : found.key();
}

IconFile IconCatalog::file(const QString& alias, const QString& context) const
{
    const TarnisIconHandler::ContextMap contexts = iconMap.value(alias);
    const auto found = TarnisIconHandler::findContext(contexts, context);
    if (found == contexts.end())
        return IconFile();
    const auto known = files.constFind(*found);
    return known != files.constEnd() ? *known : *files.insert(*found, IconFile::read(iconFolder, *found));
}

bool IconCatalog::update(const QmlHost::Answers& old, const QmlHost::Answers& fresh)
{
    if (fresh.icons == old.icons)
        return false;
    const auto& [folder, mappingTable] = fresh.icons.value;
    iconFolder = folder;
    files.clear();
    iconMap = TarnisIconHandler(folder, QStringLiteral("{}")).parseMappingTable(mappingTable);
    contextNames = QStringList(TarnisIconHandler::defaultContextPathKey);
    for (const TarnisIconHandler::ContextMap& contexts : qAsConst(iconMap))
        contextNames += contexts.keys();
    contextNames.removeDuplicates();
    contextNames.removeAll(QString()); // the handler's mark for a path that is not a string
    return true;
}

} // namespace Gallery
