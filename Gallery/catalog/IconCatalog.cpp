#include "Gallery/catalog/IconCatalog.h"

namespace Gallery
{

IconCatalog::IconCatalog(const TarnisUi& tarnisUi)
    : Catalog(tarnisUi)
{
    start();
}

QStringList IconCatalog::contexts() const
{
    return contextNames;
}

QStringList IconCatalog::aliases(const QString& search) const
{
    return QStringList(iconMap.keys()).filter(search, Qt::CaseInsensitive);
}

QString IconCatalog::effectiveContext(const QString& alias, const QString& context) const
{
    const TarnisIconHandler::ContextMap contexts = iconMap.value(alias);
    const auto found = TarnisIconHandler::findContext(contexts, context);
    return found == contexts.end() ? QString() : found.key();
}

bool IconCatalog::update(const QmlHost::Answers& old, const QmlHost::Answers& fresh)
{
    if (fresh.icons == old.icons)
        return false;
    const auto& [folder, mappingTable] = fresh.icons.value;
    iconMap = TarnisIconHandler(folder, QStringLiteral("{}")).parseMappingTable(mappingTable);
    contextNames = QStringList(TarnisIconHandler::defaultContextPathKey);
    for (const TarnisIconHandler::ContextMap& contexts : qAsConst(iconMap))
        contextNames += contexts.keys();
    contextNames.removeDuplicates();
    return true;
}

} // namespace Gallery
