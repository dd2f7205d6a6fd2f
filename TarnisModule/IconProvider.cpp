#include "TarnisModule/IconProvider.h"

#include "TarnisModule/Answer.h"

namespace TarnisModule
{

IconProvider::IconProvider(const ResourceFormat::Directory& resourceDirectory)
    : resources(resourceDirectory)
{
}

QDBusVariant IconProvider::getIconResourcesBasePath() const
{
    QString problem;
    const QString folder = resources.iconFolder(problem);
    return Answer::of(folder, problem);
}

QDBusVariant IconProvider::getIconResourcesMappingTable(const QString& name) const
{
    QString problem;
    const QString table = resources.mappingTable(name, problem);
    return Answer::of(table, problem);
}

} // namespace TarnisModule
