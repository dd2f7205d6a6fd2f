#pragma once

#include <QFileInfoList>
#include <QString>
#include <QStringList>

namespace ResourceFormat
{

/// The layout of a resource directory: the name of every file and folder below it.
///
/// Paths begin with the path of the directory, as it was given. A path is answered whether or not a file exists there;
/// lists show the directory as it is at the time of the call, including hidden files and those that are not regular.
class Directory
{
public:
    explicit Directory(const QString& directoryPath);

    const QString& path() const;

    /// The INI file of the colors.
    QString colorFile() const;

    /// The INI file of the fonts.
    QString fontFile() const;

    QString dimensionFolder() const;

    /// The INI files of the dimensions, sorted by name. Whether a name is a display size is up to the caller.
    QFileInfoList dimensionFiles() const;

    QString iconFolder() const;

    /// The icon mapping table with this name; the empty name is the default table.
    QString mappingTable(const QString& name = QString()) const;

    /// The default mapping table, also when it does not exist, then the others, sorted by name.
    QStringList mappingTables() const;

    QString textFolder() const;

    /// The language files, sorted by name. Whether a name is a language is up to the caller.
    QFileInfoList languageFiles() const;

private:
    QString directory;
};

} // namespace ResourceFormat
