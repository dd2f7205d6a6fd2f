#pragma once

#include "ResourceCheck/qml/QmlPattern.h"

#include <QVector>

#include <private/qqmljsastfwd_p.h>

/// What an expression of QML says before it is run.
namespace QmlExpression
{

/// The names of a member expression with dots between them. What stands before them and is no name counts as an empty
/// one: `.colors` for `item().colors`. Empty for any other expression.
QString path(QQmlJS::AST::Node* expression);

/// The texts that the expression may have: for `isOpen ? "up" : "down"` both. At least one.
QVector<QmlPattern> texts(QQmlJS::AST::ExpressionNode* expression, const QString& file);

} // namespace QmlExpression
