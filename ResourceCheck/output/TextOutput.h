#pragma once

#include "ResourceCheck/Finding.h"

#include <QByteArray>
#include <QVector>

namespace ResourceCheck
{

/// One line for each finding, in the format of compilers.
QByteArray textOutput(const QVector<Finding>& findings, bool isColored);

/// The number of findings of each rule, and the totals.
QByteArray summaryOutput(const QVector<Finding>& findings);

/// One line: "3 errors, 1 warning".
QByteArray totals(const QVector<Finding>& findings);

} // namespace ResourceCheck
