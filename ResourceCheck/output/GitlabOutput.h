#pragma once

#include "ResourceCheck/Finding.h"

#include <QByteArray>
#include <QVector>

namespace ResourceCheck
{

/// The findings as a code quality report of GitLab.
QByteArray gitlabOutput(const QVector<Finding>& findings);

} // namespace ResourceCheck
