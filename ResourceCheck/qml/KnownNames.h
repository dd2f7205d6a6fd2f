#pragma once

#include "ResourceCheck/qml/QmlPattern.h"

#include <QSet>
#include <QStringList>
#include <QVector>

/// Names that exist, as a whole or in the form `Group/Key`, to be asked for by patterns.
class KnownNames
{
public:
    explicit KnownNames(const QStringList& names);

    bool contains(const QmlPattern& pattern) const;

    /// The name, or `*/Key` or `Group/*`, that differs least from the pattern's text, the first of several. Null if
    /// all differ in more than a third of the characters of its longest part.
    QString nearest(const QmlPattern& pattern) const;

private:
    QStringList names;
    QStringList candidates;   // in their order those with `*` follow
    QVector<quint64> letters; // of the candidates, a bit for each that occurs
    QSet<QString> candidateSet;
};
