#pragma once

#include "ResourceCheck/qml/QmlFault.h"
#include "ResourceCheck/qml/code/CodeBuilder.h"

namespace ResourceCheck
{

/// Reads QML and JavaScript code with Qt's own parser.
namespace CodeReader
{

/// Translates the code of `file.path`. Syntax errors and code that is too deep become faults.
void read(const QString& code, CodeFile& file, CodeTables& tables, QVector<QmlFault>& faults);

} // namespace CodeReader

} // namespace ResourceCheck
