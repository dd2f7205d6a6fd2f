#pragma once

#include "ResourceCheck/qml/QmlPattern.h"

#include <QVector>

#include <private/qqmljsastfwd_p.h>

namespace ResourceCheck
{

/// What is known about a QML expression without running it.
namespace QmlExpression
{

/// The names of a member expression, separated by dots. Anything but a name counts as an empty name: `.colors` for
/// `item().colors`. Empty for any other expression.
QString path(QQmlJS::AST::Node* expression);

/// The texts that the expression can have, at least one: both of them for `isOpen ? "up" : "down"`.
QVector<QmlPattern> texts(QQmlJS::AST::ExpressionNode* expression, const QString& file);

} // namespace QmlExpression

} // namespace ResourceCheck
