#include "Gallery/frontend/ObjectTree.h"

#include <QHash>
#include <QPair>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSet>
#include <QVector>

namespace Gallery::ObjectTree
{

namespace
{

QString nameOf(QObject* object)
{
    const QQmlContext* const context = qmlContext(object);
    QString id = context == nullptr ? QString() : context->nameForObject(object);
    if (!id.isEmpty())
        return id;
    // The names of QML types end with a number that differs between engines.
    return QString::fromLatin1(object->metaObject()->className()).section(QStringLiteral("_QML"), 0, 0);
}

// An item of a list has no parent object, only a parent item.
QList<QObject*> childrenOf(QObject* object)
{
    QList<QObject*> children = object->children();
    if (const auto* const item = qobject_cast<QQuickItem*>(object)) {
        const QList<QQuickItem*> items = item->childItems();
        for (QQuickItem* const child : items)
            children.append(child);
    }
    if (const auto* const window = qobject_cast<QQuickWindow*>(object))
        children.append(window->contentItem());
    return children;
}

} // namespace

QMap<QString, QObject*> paths(QObject& root)
{
    QMap<QString, QObject*> found;
    QSet<QObject*> seen{&root};
    QVector<QPair<QString, QObject*>> waiting{{QString(), &root}};
    for (int index = 0; index < waiting.size(); ++index) {
        const auto [path, object] = waiting.at(index);
        found.insert(path, object);
        QHash<QString, int> counts;
        const QList<QObject*> children = childrenOf(object);
        for (QObject* const child : children) {
            if (seen.contains(child))
                continue;
            seen.insert(child);
            const QString name = nameOf(child);
            waiting.append({QStringLiteral("%1/%2#%3").arg(path, name).arg(counts[name]++), child});
        }
    }
    return found;
}

} // namespace Gallery::ObjectTree
