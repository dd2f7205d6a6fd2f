#pragma once

#include "ResourceCheck/reading/JsonFile.h"

#include <QVector>

namespace ResourceCheck
{

/// The path that an alias lists for one context.
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

/// A mapping table. Aliases and paths of the wrong type are not listed.
struct IconTable {
    explicit IconTable(const QString& path);

    JsonFile file;
    QVector<IconAlias> aliases;
};

} // namespace ResourceCheck
