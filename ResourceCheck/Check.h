#pragma once

#include "ResourceCheck/Finding.h"

#include <QHash>
#include <QVector>

struct Project;

/// Applies every rule that is not switched off, each with its own severity or the one given for its name. The findings
/// are sorted by place.
QVector<Finding> check(const Project& project, const QHash<QString, Severity>& severities);
