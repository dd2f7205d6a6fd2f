#pragma once

#include "ResourceCheck/qml/code/CodeBuilder.h"

#include <private/qqmljsastfwd_p.h>

namespace ResourceCheck
{

/// Translates `switch`.
namespace SwitchCode
{

/// Whether the code after the statement is not reached.
bool leaves(QQmlJS::AST::Node* statement);

void write(const QQmlJS::AST::SwitchStatement* statement, CodeBuilder& builder);

} // namespace SwitchCode

} // namespace ResourceCheck
