#pragma once

#include "ResourceCheck/qml/code/CodeBuilder.h"

#include <private/qqmljsastfwd_p.h>

namespace ResourceCheck
{

/// Translates statements.
namespace StatementCode
{

/// Declares the variables of the list in the innermost block and writes all statements.
void writeList(QQmlJS::AST::StatementList* list, CodeBuilder& builder);

/// Writes one statement.
void write(QQmlJS::AST::Node* statement, CodeBuilder& builder);

} // namespace StatementCode

} // namespace ResourceCheck
