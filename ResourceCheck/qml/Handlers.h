#pragma once

#include "ResourceCheck/reading/ResourceKind.h"

#include <QHash>
#include <QStringList>
#include <QVector>

namespace ResourceCheck
{

/// A method or a map of a handler, with which QML looks up resources.
struct HandlerMember {
    QString handler; // the class
    QString name;
    ResourceKind kind;
    QStringList arguments; // that a call must have; empty for a map
};

/// What QML can reach of the library.
namespace Handlers
{

const QVector<HandlerMember>& members();

/// The number of the member in members(), or -1.
int member(const QString& handler, const QString& name);

/// All names that QML may use of the handler in addition to members(): what each object has.
bool isCommonName(const QString& name);

/// The classes of the handlers by the names under which QmlHost publishes them.
const QHash<QString, QString>& defaultNames();

/// The properties of QmlHost's object `Ui` that are not handlers.
const QStringList& otherProperties();

} // namespace Handlers

} // namespace ResourceCheck
