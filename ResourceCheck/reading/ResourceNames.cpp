#include "ResourceCheck/reading/ResourceNames.h"

#include "ResourceFormat/Language.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"

namespace ResourceCheck
{

using ResourceFormat::IniEntry;

namespace
{

QString nameOf(const IniEntry& entry)
{
    return entry.group + QLatin1Char('/') + entry.key;
}

} // namespace

ResourceNames::ResourceNames(const Resources& resources, ResourceKind kind)
{
    switch (kind) {
    case ResourceKind::Color:
        addColors(resources.colors);
        break;
    case ResourceKind::FontGroup:
        addFontGroups(resources.fonts);
        break;
    case ResourceKind::FontSize:
        addFontSizes(resources.fonts);
        break;
    case ResourceKind::Dimension:
        addDimensions(resources.dimensions);
        break;
    case ResourceKind::Icon:
        addIcons(resources.iconTables);
        break;
    case ResourceKind::IconContext:
        addIconContexts(resources.iconTables);
        break;
    case ResourceKind::Text:
        addTexts(resources.soundText(ResourceFormat::Language::secondFallback()));
        break;
    }
}

QStringList ResourceNames::names() const
{
    QStringList names;
    for (const ResourceName& name : nameList)
        names.append(name.name);
    return names;
}

void ResourceNames::addColors(const IniFile& file)
{
    complete = file.problem().isNull();
    for (const IniEntry& entry : file.content().entries())
        add(nameOf(entry), entry.key, file.place(entry.line));
}

void ResourceNames::addFontGroups(const IniFile& file)
{
    complete = file.problem().isNull();
    for (const QString& group : file.content().groups())
        add(group, group, {file.path()});
}

void ResourceNames::addFontSizes(const IniFile& file)
{
    complete = file.problem().isNull();
    for (const IniEntry& entry : file.content().entries()) {
        if (entry.key != TarnisFontHandler::familyKey)
            add(nameOf(entry), entry.key, file.place(entry.line));
    }
}

void ResourceNames::addDimensions(const QVector<DimensionFile>& dimensions)
{
    complete = !dimensions.isEmpty();
    for (const DimensionFile& dimension : dimensions) {
        complete = complete && dimension.file.problem().isNull();
        for (const IniEntry& entry : dimension.file.content().entries())
            add(nameOf(entry), nameOf(entry), dimension.file.place(entry.line));
    }
}

void ResourceNames::addIcons(const QVector<IconTable>& tables)
{
    for (const IconTable& table : tables) {
        complete = complete && table.file.isSound();
        for (const JsonValue& alias : table.file.root().members)
            add(alias.name, alias.name, alias.namePlace);
    }
}

void ResourceNames::addIconContexts(const QVector<IconTable>& tables)
{
    for (const IconTable& table : tables) {
        complete = complete && table.file.isSound();
        for (const IconAlias& alias : table.aliases) {
            for (const IconPath& path : alias.paths)
                add(path.context, path.context, path.place);
        }
    }
}

void ResourceNames::addTexts(const TextFile* text)
{
    if (text != nullptr) {
        for (const JsonValue& member : text->file.root().members)
            add(member.name, member.name, member.namePlace);
    }
    complete = !nameList.isEmpty();
}

void ResourceNames::add(const QString& name, const QString& key, const Place& place)
{
    if (!seen.contains(name))
        nameList.append({name, key, place});
    seen.insert(name);
}

} // namespace ResourceCheck
