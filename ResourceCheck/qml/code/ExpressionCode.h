#pragma once

#include "ResourceCheck/qml/code/CodeBuilder.h"

#include <private/qqmljsastfwd_p.h>

namespace ResourceCheck
{

/// Translates expressions.
namespace ExpressionCode
{

/// Appends the operations of the expression and returns the slot with its value.
CodeSlot write(QQmlJS::AST::ExpressionNode* expression, CodeBuilder& builder);

/// Assigns the value to a variable, a property or the variables of a pattern.
void assign(QQmlJS::AST::ExpressionNode* target, CodeSlot value, CodeBuilder& builder);

/// The text of a path such as `row.name` or `table[key]`; null for any other expression.
QString path(QQmlJS::AST::Node* expression);

/// The place of a token.
template <typename Location>
CodePosition position(const Location& location)
{
    return {static_cast<int>(location.startLine), static_cast<int>(location.startColumn)};
}

} // namespace ExpressionCode

} // namespace ResourceCheck
