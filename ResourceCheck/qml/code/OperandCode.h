#pragma once

#include "ResourceCheck/qml/code/CodeBuilder.h"

#include <private/qqmljsastfwd_p.h>

namespace ResourceCheck
{

/// Translates literals and expressions with one operand.
namespace OperandCode
{

/// Returns the slot with the value of the expression; an unknown value for any other expression.
CodeSlot write(QQmlJS::AST::ExpressionNode* expression, CodeBuilder& builder);

} // namespace OperandCode

} // namespace ResourceCheck
