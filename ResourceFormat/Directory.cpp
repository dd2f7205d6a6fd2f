#include "ResourceFormat/Directory.h"

#include "ResourceFormat/Language.h"

#include <QDir>

namespace
{

QFileInfoList filesIn(const QString& folder, const QString& pattern)
{
    return QDir(folder).entryInfoList({pattern}, QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot,
                                      QDir::Name);
}

} // namespace

namespace ResourceFormat
{

Directory::Directory(const QString& directoryPath)
    : directory(directoryPath)
{
}

const QString& Directory::path() const
{
    return directory;
}

QString Directory::colorFile() const
{
    return directory + QStringLiteral("/colors.ini");
}

QString Directory::fontFile() const
{
    return directory + QStringLiteral("/fonts.ini");
}

QString Directory::dimensionFolder() const
{
    return directory + QStringLiteral("/dimensions");
}

QFileInfoList Directory::dimensionFiles() const
{
    return filesIn(dimensionFolder(), QStringLiteral("*.ini"));
}

QString Directory::iconFolder() const
{
    return directory + QStringLiteral("/icons");
}

QString Directory::mappingTable(const QString& name) const
{
    return iconFolder()
        + (name.isEmpty() ? QStringLiteral("/mapping.json") : QStringLiteral("/mapping.%1.json").arg(name));
}

QStringList Directory::mappingTables() const
{
    QStringList tables(mappingTable());
    for (const QFileInfo& file : filesIn(iconFolder(), QStringLiteral("mapping.*.json")))
        tables.append(file.filePath());
    return tables;
}

QString Directory::textFolder() const
{
    return directory + QStringLiteral("/texts");
}

QFileInfoList Directory::languageFiles() const
{
    return filesIn(textFolder(), Language::fileName(QStringLiteral("*")));
}

} // namespace ResourceFormat
