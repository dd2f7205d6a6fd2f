#pragma once

#include "ResourceCheck/qml/QmlNames.h"
#include "ResourceCheck/qml/QmlUse.h"

#include <QHash>
#include <QSet>
#include <QVector>

namespace ResourceCheck
{

/// The lookups of a front end's QML in the handlers.
class QmlUses
{
public:
    /// The classes of the handlers by the names under which QmlHost publishes them.
    static QHash<QString, QString> defaultHandlers();

    /// Reads all *.qml, *.js and *.mjs files below the directories and follows the names in them. `handlers` gives the
    /// classes by the names under which the host publishes them: `Ui.colors` also matches `Module.Ui.colors`.
    explicit QmlUses(const QStringList& directories, const QHash<QString, QString>& handlers = defaultHandlers());

    const QVector<QmlUse>& uses() const { return useList; }

    /// All string literals.
    const QSet<QString>& literals() const { return literalSet; }

    /// Patterns of names that comments declare.
    const QStringList& declaredNames() const { return declaredList; }

    /// The files and directories that could not be read completely, with what is wrong and what to do.
    const QVector<QmlFault>& faults() const { return faultList; }

    /// The calls that a device rejects.
    const QVector<QmlFault>& rejectedCalls() const { return rejectedList; }

    const QmlNames& names() const { return allNames; }

private:
    void count(const class FrontEnd& frontEnd);

    QVector<QmlUse> useList;
    QSet<QString> literalSet;
    QStringList declaredList;
    QVector<QmlFault> faultList;
    QVector<QmlFault> rejectedList;
    QmlNames allNames;
};

} // namespace ResourceCheck
