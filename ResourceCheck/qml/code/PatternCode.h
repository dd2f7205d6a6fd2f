#pragma once

#include "ResourceCheck/qml/code/CodeBuilder.h"

#include <private/qqmljsastfwd_p.h>

namespace ResourceCheck
{

/// Translates literals of arrays and objects, and destructuring.
namespace PatternCode
{

CodeSlot writeArray(QQmlJS::AST::PatternElementList* elements, CodeBuilder& builder);
CodeSlot writeObject(QQmlJS::AST::PatternPropertyList* properties, CodeBuilder& builder);

/// Declares the variables of a declaration or a parameter in the innermost block.
void declare(QQmlJS::AST::PatternElement* element, CodeBuilder& builder);

/// Assigns the value to the variable or the pattern of the element, including its default value.
void bind(QQmlJS::AST::PatternElement* element, CodeSlot value, CodeBuilder& builder);

/// Assigns the members of the value to the targets in an array or object pattern.
void assign(QQmlJS::AST::Node* pattern, CodeSlot value, CodeBuilder& builder);

} // namespace PatternCode

} // namespace ResourceCheck
