#include "Gallery/ResourceNames.h"

#include "Common/IniTools/IniFileManager.h"
#include "Gallery/UiResources.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace
{

QVariantList groupsOf(const QString& path, const QString& leftOutKey)
{
    QVariantList groups;
    if (path.isEmpty())
        return groups;
    const IniFileManager file(path, nullptr);
    const QList<QString> names = file.getGroups();
    for (const QString& name : names) {
        QStringList keys = file.getChildKeys(name);
        keys.removeAll(leftOutKey);
        groups.append(QVariantMap{{QStringLiteral("group"), name}, {QStringLiteral("keys"), keys}});
    }
    return groups;
}

QVariantList aliasesOf(const QString& mappingTable)
{
    QVariantList aliases;
    const QJsonObject table = QJsonDocument::fromJson(mappingTable.toUtf8()).object();
    for (auto alias = table.begin(); alias != table.end(); ++alias) {
        aliases.append(QVariantMap{{QStringLiteral("alias"), alias.key()},
                                   {QStringLiteral("contexts"), alias->toObject().keys()}});
    }
    return aliases;
}

} // namespace

ResourceNames::ResourceNames(const UiResources& resources)
    : resources(resources)
{
    connect(&resources, &UiResources::reloaded, this, &ResourceNames::update);
    update();
}

void ResourceNames::update()
{
    colors = groupsOf(resources.colorIniFilePath(), QString());
    fonts = groupsOf(resources.fontIniFilePath(), QStringLiteral("Family"));
    icons = aliasesOf(resources.iconMappingTable());
    Q_EMIT changed();
}
