#pragma once

#include "ResourceCheck/qml/QmlPattern.h"

#include <QVector>

namespace ResourceCheck
{

/// The methods of texts in QML.
namespace TextMethod
{

/// Whether the result is a text that can be known.
bool isKnown(const QString& method);

/// The result of `text.method(arguments)`; a pattern if it cannot be known exactly.
QmlPattern apply(const QString& method, const QmlPattern& text, const QVector<QmlPattern>& arguments);

} // namespace TextMethod

} // namespace ResourceCheck
