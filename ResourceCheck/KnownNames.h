#pragma once

#include "ResourceCheck/QmlPattern.h"

#include <QHash>
#include <QSet>
#include <QStringList>

/// Names that exist, to be asked for by patterns. Those in question may have the form `Group/Key`.
class KnownNames
{
public:
    explicit KnownNames(const QStringList& names);

    bool contains(const QmlPattern& pattern) const;

    /// The name that differs least from the pattern's text, `*` included, the first of several. Null if all differ
    /// in more than a third of the characters of its longest part.
    QString nearest(const QmlPattern& pattern) const;

private:
    QStringList names;
    QStringList groups;
    QStringList keys;
    QSet<QString> nameSet;
    QHash<QString, QStringList> namesByKey;
};
