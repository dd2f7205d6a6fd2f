#pragma once

#include "ResourceCheck/qml/QmlPattern.h"
#include "ResourceCheck/reading/ResourceKind.h"

#include <QVector>

namespace ResourceCheck
{

/// One lookup in a handler. It can ask for every name that combines one of `groups` with one of `keys`.
struct QmlUse {
    ResourceKind kind;
    Place place;
    QVector<QmlPattern> groups; // a single pattern without text if the names have no group
    QVector<QmlPattern> keys;
    /// Whether it can also ask for names that depend on values at run time. A pattern without text stands for them.
    bool isUndeterminable = false;
    Place end{}; // of the code of the lookup, which begins at `place`

    QmlPattern name(const QmlPattern& group, const QmlPattern& key) const;
};

/// Whether QML passes the group and the key as two arguments.
bool hasGroupArgument(ResourceKind kind);

} // namespace ResourceCheck
