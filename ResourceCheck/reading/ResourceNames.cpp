#include "ResourceCheck/reading/ResourceNames.h"

#include "Common/TextTools/LanguageDefinitions.h"

#include <QFileInfo>

ResourceNames::ResourceNames(const Resources& resources, ResourceKind kind)
{
    if (kind == ResourceKind::Color)
        addPairs(resources.colors, kind);
    if (kind == ResourceKind::FontGroup)
        addGroups(resources.fonts);
    if (kind == ResourceKind::FontSize)
        addPairs(resources.fonts, kind);
    if (kind == ResourceKind::Dimension) {
        complete = !resources.dimensions.isEmpty();
        for (const DimensionFile& dimension : resources.dimensions)
            addPairs(dimension.file, kind);
    }
    for (const IconTable& table : resources.iconTables) {
        if (kind == ResourceKind::Icon)
            addMembers(table.file);
        if (kind == ResourceKind::IconContext)
            addContexts(table);
    }
    if (kind == ResourceKind::Text) {
        const QString& filename = LanguageDefinitions::getSecondFallbackLanguageFilename();
        for (const TextFile& text : resources.texts) {
            if (QFileInfo(text.file.path()).fileName() == filename)
                addMembers(text.file);
        }
        complete = complete && !nameList.isEmpty();
    }
}

void ResourceNames::addPairs(const IniFile& file, ResourceKind kind)
{
    complete = complete && file.problem().isNull();
    for (const IniEntry& entry : file.content().entries()) {
        const QString name = entry.group + QLatin1Char('/') + entry.key;
        if (kind != ResourceKind::FontSize || entry.key != QLatin1String("Family"))
            add(name, kind == ResourceKind::Dimension ? name : entry.key, file.place(entry.line));
    }
}

void ResourceNames::addGroups(const IniFile& file)
{
    complete = complete && file.problem().isNull();
    for (const QString& group : file.content().groups())
        add(group, group, {file.path()});
}

void ResourceNames::addMembers(const JsonFile& file)
{
    complete = complete && file.isSound();
    for (const JsonValue& member : file.root().members)
        add(member.name, member.name, member.namePlace);
}

void ResourceNames::addContexts(const IconTable& table)
{
    complete = complete && table.file.isSound();
    for (const IconAlias& alias : table.aliases) {
        for (const IconPath& path : alias.paths)
            add(path.context, path.context, path.place);
    }
}

void ResourceNames::add(const QString& name, const QString& key, const Place& place)
{
    if (!seen.contains(name))
        nameList.append({name, key, place});
    seen.insert(name);
}
