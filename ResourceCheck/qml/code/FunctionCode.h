#pragma once

#include "ResourceCheck/qml/code/CodeBuilder.h"

#include <private/qqmljsastfwd_p.h>

namespace ResourceCheck
{

/// Translates functions and classes.
namespace FunctionCode
{

/// Adds the function as a unit and returns the slot of the function. `hasThis` is false for arrow functions and for
/// methods in QML, whose `this` is their object.
CodeSlot write(QQmlJS::AST::FunctionExpression* function, CodeBuilder& builder, bool isQmlMethod = false);

CodeSlot writeClass(QQmlJS::AST::ClassExpression* definition, CodeBuilder& builder);

} // namespace FunctionCode

} // namespace ResourceCheck
