#pragma once

#include <QMap>
#include <QString>

class QObject;

/// The objects of a front end.
namespace Gallery::ObjectTree
{

/// All objects below the root object, with the item below windows, by their path. A part of a path is the id of the
/// object, otherwise its type, and its number among the siblings of the same name.
QMap<QString, QObject*> paths(QObject& root);

} // namespace Gallery::ObjectTree
