#include "ResourceCheck/reading/Resources.h"

#include "ResourceFormat/DisplaySize.h"
#include "ResourceFormat/Language.h"

namespace ResourceCheck
{

namespace
{

QVector<DimensionFile> readDimensions(const QFileInfoList& files)
{
    QVector<DimensionFile> dimensions;
    for (const QFileInfo& file : files) {
        const QSize size = ResourceFormat::DisplaySize::fromName(file.completeBaseName());
        dimensions.append({IniFile(file.filePath()), size});
    }
    return dimensions;
}

QVector<IconTable> readIconTables(const QStringList& paths)
{
    QVector<IconTable> tables;
    for (const QString& path : paths)
        tables.append(IconTable(path));
    return tables;
}

QVector<TextFile> readTexts(const QFileInfoList& files)
{
    QVector<TextFile> texts;
    for (const QFileInfo& file : files)
        texts.append(TextFile(file.filePath()));
    return texts;
}

} // namespace

Resources::Resources(const QString& path)
    : directory(path)
    , colors(directory.colorFile())
    , fonts(directory.fontFile())
    , dimensions(readDimensions(directory.dimensionFiles()))
    , icons(directory.iconFolder())
    , iconTables(readIconTables(directory.mappingTables()))
    , iconFiles(icons, iconPaths())
    , texts(readTexts(directory.languageFiles()))
{
}

QVector<IconPath> Resources::iconPaths() const
{
    QVector<IconPath> paths;
    for (const IconTable& table : iconTables) {
        for (const IconAlias& alias : table.aliases)
            paths += alias.paths;
    }
    return paths;
}

const TextFile* Resources::soundText(const QString& language) const
{
    const QString name = ResourceFormat::Language::fileName(language);
    for (const TextFile& text : texts) {
        if (QFileInfo(text.file.path()).fileName() == name && text.file.isSound())
            return &text;
    }
    return nullptr;
}

} // namespace ResourceCheck
