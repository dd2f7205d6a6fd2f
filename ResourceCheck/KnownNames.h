#pragma once

#include "ResourceCheck/QmlPattern.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QVector>

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
    struct Candidate {
        QString name;
        quint64 letters; // a bit for each that occurs
    };

    static quint64 lettersOf(const QString& name);
    static QVector<Candidate> candidatesOf(const QStringList& names);
    static QString nearestOf(const QVector<Candidate>& candidates, const QString& name);
    bool isThere(const QmlPattern& pattern) const;

    QStringList names;
    QVector<Candidate> wholeNames;
    QVector<Candidate> groups;
    QVector<Candidate> keys;
    QSet<QString> nameSet;
    QHash<QString, QStringList> namesByKey;
    mutable QHash<QString, bool> answers; // by the texts of patterns
};
