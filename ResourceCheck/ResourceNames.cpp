#include "ResourceCheck/ResourceNames.h"

#include "Common/TextTools/LanguageDefinitions.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace
{

const QString familyKey = QStringLiteral("Family");

using Names = QVector<ResourceName>;

Names pairsOf(const IniFile& file)
{
    Names names;
    for (const IniEntry& entry : file.content().entries())
        names.append({entry.group + QLatin1Char('/') + entry.key, entry.key, file.keyPlace(entry)});
    return names;
}

Names fontSizesOf(const IniFile& file)
{
    Names names;
    for (const ResourceName& name : pairsOf(file)) {
        if (name.key != familyKey)
            names.append(name);
    }
    return names;
}

Names groupsOf(const IniFile& file)
{
    Names names;
    for (const QString& group : file.content().groups())
        names.append({group, group, {file.path()}});
    return names;
}

Names dimensionsOf(const QVector<DimensionFile>& files)
{
    Names names;
    for (const DimensionFile& dimension : files) {
        for (const ResourceName& name : pairsOf(dimension.file))
            names.append({name.name, name.name, name.place});
    }
    return names;
}

Names membersOf(const JsonFile& file)
{
    Names names;
    QSet<QString> seen;
    for (const JsonValue& member : file.root().members) {
        if (!seen.contains(member.name))
            names.append({member.name, member.name, member.namePlace});
        seen.insert(member.name);
    }
    return names;
}

Names aliasesOf(const QVector<IconTable>& tables)
{
    Names names;
    for (const IconTable& table : tables)
        names += membersOf(table.file);
    return names;
}

Names contextsOf(const QVector<IconTable>& tables)
{
    Names names;
    for (const IconTable& table : tables) {
        for (const IconAlias& alias : table.aliases) {
            for (const IconPath& path : alias.paths)
                names.append({path.context, path.context, path.place});
        }
    }
    return names;
}

// The file that offers all texts.
const TextFile* fallbackOf(const QVector<TextFile>& files)
{
    for (const TextFile& text : files) {
        if (QFileInfo(text.file.path()).fileName() == LanguageDefinitions::getSecondFallbackLanguageFilename())
            return &text;
    }
    return nullptr;
}

Names namesOf(const Resources& resources, ResourceKind kind)
{
    const TextFile* fallback = fallbackOf(resources.texts);
    switch (kind) {
    case ResourceKind::Color:
        return pairsOf(resources.colors);
    case ResourceKind::FontGroup:
        return groupsOf(resources.fonts);
    case ResourceKind::FontSize:
        return fontSizesOf(resources.fonts);
    case ResourceKind::Dimension:
        return dimensionsOf(resources.dimensions);
    case ResourceKind::Icon:
        return aliasesOf(resources.iconTables);
    case ResourceKind::IconContext:
        return contextsOf(resources.iconTables);
    case ResourceKind::Text:
        return fallback == nullptr ? Names() : membersOf(fallback->file);
    }
    return {};
}

bool isWhole(const IniFile& file)
{
    return file.problem().isNull();
}

bool isWhole(const JsonFile& file)
{
    return file.problem().isNull() && file.fault().isNull();
}

template <typename Files>
bool areWhole(const Files& files)
{
    return !files.isEmpty()
        && std::all_of(files.begin(), files.end(), [](const auto& entry) { return isWhole(entry.file); });
}

bool areWhole(const Resources& resources, ResourceKind kind)
{
    const TextFile* fallback = fallbackOf(resources.texts);
    switch (kind) {
    case ResourceKind::Color:
        return isWhole(resources.colors);
    case ResourceKind::FontGroup:
    case ResourceKind::FontSize:
        return isWhole(resources.fonts);
    case ResourceKind::Dimension:
        return areWhole(resources.dimensions);
    case ResourceKind::Icon:
    case ResourceKind::IconContext:
        return areWhole(resources.iconTables);
    case ResourceKind::Text:
        return fallback != nullptr && isWhole(fallback->file);
    }
    return false;
}

} // namespace

ResourceNames::ResourceNames(const Resources& resources, ResourceKind kind)
    : isComplete(areWhole(resources, kind))
{
    QSet<QString> seen;
    for (const ResourceName& name : namesOf(resources, kind)) {
        if (!seen.contains(name.name))
            list.append(name);
        seen.insert(name.name);
    }
}
