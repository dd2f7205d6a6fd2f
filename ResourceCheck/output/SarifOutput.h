#pragma once

#include "ResourceCheck/Finding.h"

#include <QByteArray>
#include <QVector>

namespace ResourceCheck
{

/// All findings, also accepted ones, in the Static Analysis Results Interchange Format, version 2.1.0, with all rules.
QByteArray sarifOutput(const QVector<Finding>& findings);

} // namespace ResourceCheck
