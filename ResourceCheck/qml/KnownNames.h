#pragma once

#include "ResourceCheck/qml/QmlPattern.h"

#include <QSet>
#include <QStringList>
#include <QVector>

namespace ResourceCheck
{

/// Names that exist, each a single name or of the form `Group/Key`, for lookups by patterns.
class KnownNames
{
public:
    explicit KnownNames(const QStringList& existingNames);

    bool contains(const QmlPattern& pattern) const;

    /// The name, `*/Key` or `Group/*` that differs least from the text of the pattern, the first one if several do.
    /// Null if all differ in more than a third of the characters of its longest part.
    QString nearest(const QmlPattern& pattern) const;

private:
    QStringList names;
    QStringList candidates;   // the names, then those with `*`
    QVector<quint64> letters; // of each candidate, one bit for each letter that occurs
    QSet<QString> candidateSet;
};

} // namespace ResourceCheck
