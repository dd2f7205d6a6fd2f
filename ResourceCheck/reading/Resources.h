#pragma once

#include "ResourceCheck/reading/IniFile.h"
#include "ResourceCheck/reading/JsonFile.h"

#include <QSize>
#include <QVector>

struct DimensionFile {
    IniFile file;
    QSize size; // as the name of the file says; invalid when it says none
};

/// What an alias lists for one context.
struct IconPath {
    QString context;
    QString path; // relative to the icon directory
    Place place;
};

struct IconAlias {
    QString name;
    Place place;
    QVector<IconPath> paths;
};

/// One mapping table. An alias or a path of the wrong type is left out of `aliases`.
struct IconTable {
    JsonFile file;
    QVector<IconAlias> aliases;
};

struct TextFile {
    QString language; // as the name of the file says
    JsonFile file;
    QVector<JsonValue> texts; // those that are strings
};

/// All that a resource directory holds, read once.
struct Resources {
    explicit Resources(const QString& directory);

    QString directory;
    IniFile colors;
    IniFile fonts;
    QVector<DimensionFile> dimensions; // by the names of the files
    QString iconDirectory;
    QVector<IconTable> iconTables; // the one without a name first
    QVector<TextFile> texts;       // by the names of the files
};
