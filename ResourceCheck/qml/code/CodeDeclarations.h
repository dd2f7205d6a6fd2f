#pragma once

#include "ResourceCheck/qml/code/CodeBuilder.h"

#include <private/qqmljsastfwd_p.h>

namespace ResourceCheck
{

/// Finds the variables that a block declares, because code can use them before their declaration.
namespace CodeDeclarations
{

/// Declares the variables and functions of the list in the innermost block. A `var` in an inner block counts as one of
/// this list unless an outer block has declared it.
void declare(QQmlJS::AST::StatementList* list, CodeBuilder& builder);

/// Declares the variables of all cases of a `switch`.
void declareCases(QQmlJS::AST::CaseBlock* block, CodeBuilder& builder);

} // namespace CodeDeclarations

} // namespace ResourceCheck
