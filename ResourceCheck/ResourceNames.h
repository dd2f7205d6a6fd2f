#pragma once

#include "ResourceCheck/QmlUses.h"
#include "ResourceCheck/Resources.h"

#include <QVector>

struct ResourceName {
    QString name; // as a whole: `Group/Key`
    QString key;  // what QML may say without the group; else the name
    Place place;
};

/// The names of one kind that the resources answer to, each once, in the order of the files.
struct ResourceNames {
    ResourceNames(const Resources& resources, ResourceKind kind);

    QVector<ResourceName> list;
    bool isComplete; // no file is missing that might hold more
};
