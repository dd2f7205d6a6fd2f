#pragma once

#include <QHash>
#include <QStringList>

/// What the paths of one file mean.
class QmlScope
{
public:
    /// `handlers` are classes by the names they are published under; `bindings` as QmlCollector gives them.
    QmlScope(const QHash<QString, QString>& handlers, const QHash<QString, QStringList>& bindings);

    /// The class of a handler, with the name of its member if the path leads to one: `TarnisColorHandler.getColor`.
    /// Empty for anything else.
    QString meaning(const QString& path);

private:
    QString meaningOfHandler(const QString& path);
    QString meaningOfBinding(const QString& name);

    const QHash<QString, QString>& handlers;
    const QHash<QString, QStringList>& bindings;
    QHash<QString, QString> known; // by the name that is bound
};
