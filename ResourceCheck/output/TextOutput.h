#pragma once

#include "ResourceCheck/Finding.h"
#include "ResourceCheck/qml/QmlNames.h"

#include <QByteArray>
#include <QVector>

namespace ResourceCheck
{

/// One line for each finding, in the format of compilers. With `hasSource`, the line of the file follows, and a mark
/// below the place.
QByteArray textOutput(const QVector<Finding>& findings, bool isColored, bool hasSource);

/// The number of findings of each rule, and the totals.
QByteArray summaryOutput(const QVector<Finding>& findings);

/// How many names in QML depend on values at run time, after a line for each of them if they are listed. Empty if none
/// does.
QByteArray undeterminableOutput(const QmlNames& names, bool isListed);

/// One line: "3 errors, 1 warning".
QByteArray totals(const QVector<Finding>& findings);

} // namespace ResourceCheck
