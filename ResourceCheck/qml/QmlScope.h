#pragma once

#include <QHash>
#include <QStringList>

namespace ResourceCheck
{

/// What the paths in one file refer to.
class QmlScope
{
public:
    /// `handlerNames` gives the classes by the names under which they are published, `boundPaths` is the result of
    /// QmlCollector::bindings(). Both must outlive this object.
    QmlScope(const QHash<QString, QString>& handlerNames, const QHash<QString, QStringList>& boundPaths);

    /// The class of a handler, followed by the member if the path names one: `TarnisColorHandler.getColor`. Empty for
    /// anything else.
    QString meaning(const QString& path);

private:
    QString meaningOfHandler(const QString& path);
    QString meaningOfBinding(const QString& name);

    const QHash<QString, QString>& handlers;
    const QHash<QString, QStringList>& bindings;
    QHash<QString, QString> known; // by the bound name
};

} // namespace ResourceCheck
