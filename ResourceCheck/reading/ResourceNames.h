#pragma once

#include "ResourceCheck/reading/ResourceKind.h"
#include "ResourceCheck/reading/Resources.h"

#include <QSet>

namespace ResourceCheck
{

struct ResourceName {
    QString name; // the whole name: `Group/Key`
    QString key;  // the part that QML passes as one argument: the key if the group is another one, otherwise the name
    Place place;
};

/// The names of one kind that the resources define, each once, in the order of the files.
class ResourceNames
{
public:
    ResourceNames(const Resources& resources, ResourceKind kind);

    const QVector<ResourceName>& list() const { return nameList; }

    /// The whole names.
    QStringList names() const;

    /// Whether all files that can define such names could be read.
    bool isComplete() const { return complete; }

private:
    void addColors(const IniFile& file);
    void addFontGroups(const IniFile& file);
    void addFontSizes(const IniFile& file);
    void addDimensions(const QVector<DimensionFile>& dimensions);
    void addIcons(const QVector<IconTable>& tables);
    void addIconContexts(const QVector<IconTable>& tables);
    void addTexts(const TextFile* text);
    void add(const QString& name, const QString& key, const Place& place);

    QVector<ResourceName> nameList;
    QSet<QString> seen;
    bool complete = true;
};

} // namespace ResourceCheck
