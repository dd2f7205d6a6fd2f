#pragma once

#include "ResourceCheck/Finding.h"

#include <QByteArray>
#include <QVector>

namespace ResourceCheck
{

/// A JSON array with one object for each finding.
QByteArray jsonOutput(const QVector<Finding>& findings);

} // namespace ResourceCheck
