#pragma once

#include "ResourceCheck/qml/QmlPattern.h"

#include <QHash>
#include <QSet>
#include <QVector>

enum class ResourceKind { Color, FontGroup, FontSize, Dimension, Icon, IconContext, Text };

/// One question to a handler. Its names are all of `groups` before all of `keys`.
struct QmlUse {
    ResourceKind kind;
    QVector<QmlPattern> groups; // one without text where a name is no `Group/Key`
    QVector<QmlPattern> keys;

    QmlPattern name(const QmlPattern& group, const QmlPattern& key) const;
};

struct QmlFault {
    Place place;
    QString message;
};

/// What the QML of a front end asks of the handlers.
class QmlUses
{
public:
    /// The classes by the names under which the gallery publishes its handlers.
    static QHash<QString, QString> galleryHandlers();

    /// Reads all *.qml and *.js below the directories. `handlers` are classes by the names under which the host
    /// publishes them: `Ui.colors` stands for `Ui.colors` and for whatever ends with `.Ui.colors`.
    explicit QmlUses(const QStringList& directories, const QHash<QString, QString>& handlers = galleryHandlers());

    const QVector<QmlUse>& uses() const { return useList; }

    /// Each text that stands in quotes somewhere.
    const QSet<QString>& literals() const { return literalSet; }

    /// Why files or directories are left out.
    const QVector<QmlFault>& faults() const { return faultList; }

private:
    void readDirectory(const QString& directory, const QHash<QString, QString>& handlers);
    void readFile(const QString& path, const QHash<QString, QString>& handlers);
    void addUse(const QString& meaning, const QVector<QVector<QmlPattern>>& arguments);

    QVector<QmlUse> useList;
    QSet<QString> literalSet;
    QVector<QmlFault> faultList;
};
