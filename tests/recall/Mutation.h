#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVector>

namespace Tests
{

/// A fault in a front end or in a resource directory.
struct Mutation {
    QString name;                    // what was changed: where and which text
    QMap<QString, QByteArray> files; // with the fault, by their paths below the directory; null if the file is removed
};

/// One for each way to misspell each quoted name in the QML and JavaScript files of a front end, without imports.
QVector<Mutation> misspellings(const QString& directory);

/// One for each entry of each resource file, for each icon file, and for each resource that several entries define.
QVector<Mutation> removals(const QString& directory);

} // namespace Tests
