#pragma once

#include "ResourceCheck/reading/DimensionFile.h"
#include "ResourceCheck/reading/IconDirectory.h"
#include "ResourceCheck/reading/IconFiles.h"
#include "ResourceCheck/reading/IconTable.h"
#include "ResourceCheck/reading/IniFile.h"
#include "ResourceCheck/reading/TextFile.h"
#include "ResourceFormat/Directory.h"

#include <QVector>

namespace ResourceCheck
{

/// The content of a resource directory, read once.
struct Resources {
    explicit Resources(const QString& path);

    /// The paths of all icon tables.
    QVector<IconPath> iconPaths() const;

    /// The text file of the language if it is sound, otherwise null.
    const TextFile* soundText(const QString& language) const;

    ResourceFormat::Directory directory;
    IniFile colors;
    IniFile fonts;
    QVector<DimensionFile> dimensions; // sorted by file name
    IconDirectory icons;
    QVector<IconTable> iconTables; // the default table first
    IconFiles iconFiles;           // that the tables list
    QVector<TextFile> texts;       // sorted by file name
};

} // namespace ResourceCheck
