#pragma once

#include "ResourceCheck/Finding.h"

#include <QByteArray>
#include <QVector>

namespace ResourceCheck
{

/// One line for each finding, in the format of compilers. With `hasSource`, the line of the file follows, and a mark
/// below the place.
QByteArray textOutput(const QVector<Finding>& findings, bool isColored, bool hasSource);

/// The number of findings of each rule, and the totals.
QByteArray summaryOutput(const QVector<Finding>& findings);

/// One line: "3 errors, 1 warning".
QByteArray totals(const QVector<Finding>& findings);

} // namespace ResourceCheck
