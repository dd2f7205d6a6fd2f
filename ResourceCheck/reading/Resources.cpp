#include "ResourceCheck/reading/Resources.h"

#include "ResourceCheck/svg/SvgReader.h"
#include "ResourceFormat/DisplaySize.h"
#include "ResourceFormat/Language.h"

#include <QImageReader>
#include <QSet>

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

// Qt looks at the content of a file whose suffix it does not know.
bool canBeSvg(const QFileInfo& file)
{
    static const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    const QByteArray suffix = file.suffix().toLower().toLatin1();
    return suffix == "svg" || !formats.contains(suffix);
}

// Several icons can be links to the same file.
QVector<SvgFault> readSvgFiles(const IconDirectory& icons, const QVector<IconPath>& paths)
{
    QVector<SvgFault> faults;
    QSet<QString> seen;
    for (const IconPath& path : paths) {
        const QFileInfo file = icons.file(path.path);
        const QString identity = file.canonicalFilePath();
        if (!canBeSvg(file) || !icons.contains(path.path) || seen.contains(identity))
            continue;
        seen.insert(identity);
        faults += SvgReader(file.filePath()).faults();
    }
    return faults;
}

} // namespace

Resources::Resources(const QString& path)
    : directory(path)
    , colors(directory.colorFile())
    , fonts(directory.fontFile())
    , dimensions(readDimensions(directory.dimensionFiles()))
    , icons(directory.iconFolder())
    , iconTables(readIconTables(directory.mappingTables()))
    , svgFaults(readSvgFiles(icons, iconPaths()))
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
