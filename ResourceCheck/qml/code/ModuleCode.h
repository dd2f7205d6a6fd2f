#pragma once

#include "ResourceCheck/qml/code/CodeBuilder.h"

#include <private/qqmljsastfwd_p.h>

namespace ResourceCheck
{

/// Translates JavaScript files.
namespace ModuleCode
{

/// Writes a script, all of whose names are visible to files that import it, or a module.
void write(QQmlJS::AST::Node* root, CodeBuilder& builder);

} // namespace ModuleCode

} // namespace ResourceCheck
