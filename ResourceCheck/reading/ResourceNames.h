#pragma once

#include "ResourceCheck/qml/QmlUses.h"
#include "ResourceCheck/reading/Resources.h"

#include <QSet>

struct ResourceName {
    QString name; // as a whole: `Group/Key`
    QString key;  // what QML may say without the group; else the name
    Place place;
};

/// The names of one kind that the resources answer to, each once, in the order of the files.
class ResourceNames
{
public:
    ResourceNames(const Resources& resources, ResourceKind kind);

    const QVector<ResourceName>& list() const { return nameList; }

    /// No file is missing that might hold more.
    bool isComplete() const { return complete; }

private:
    void addPairs(const IniFile& file, ResourceKind kind);
    void addGroups(const IniFile& file);
    void addMembers(const JsonFile& file);
    void addContexts(const IconTable& table);
    void add(const QString& name, const QString& key, const Place& place);

    QVector<ResourceName> nameList;
    QSet<QString> seen;
    bool complete = true;
};
