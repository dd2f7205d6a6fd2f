#pragma once

#include "ResourceCheck/qml/QmlUse.h"

#include <QHash>
#include <QSet>
#include <QVector>

namespace ResourceCheck
{

struct QmlFault {
    Place place;
    QString message;
};

/// The lookups of a front end's QML in the handlers.
class QmlUses
{
public:
    /// The classes of the handlers by the names under which QmlHost publishes them.
    static QHash<QString, QString> defaultHandlers();

    /// Reads all *.qml and *.js files below the directories. `handlers` gives the classes by the names under which the
    /// host publishes them: `Ui.colors` matches `Ui.colors` and every path that ends with `.Ui.colors`.
    explicit QmlUses(const QStringList& directories, const QHash<QString, QString>& handlers = defaultHandlers());

    const QVector<QmlUse>& uses() const { return useList; }

    /// All string literals.
    const QSet<QString>& literals() const { return literalSet; }

    /// The files and directories that could not be read completely, with what is wrong and what to do.
    const QVector<QmlFault>& faults() const { return faultList; }

private:
    void readDirectory(const QString& directory, const QHash<QString, QString>& handlers);
    void readFile(const QString& path, const QHash<QString, QString>& handlers);
    void parse(const QString& code, const QString& path, const QHash<QString, QString>& handlers);
    void addUse(const QString& meaning, const QVector<QVector<QmlPattern>>& arguments);

    QVector<QmlUse> useList;
    QSet<QString> literalSet;
    QVector<QmlFault> faultList;
};

} // namespace ResourceCheck
