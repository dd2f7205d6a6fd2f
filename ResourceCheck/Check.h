#pragma once

#include "ResourceCheck/Finding.h"

#include <QHash>
#include <QVector>

#include <functional>

namespace ResourceCheck
{

struct Project;

/// Called after each rule with the number of rules that are done.
using Progress = std::function<void(int done, int all)>;

/// Applies all rules that are not switched off and returns the findings, sorted by place. `severities` overrides the
/// severities of rules by their names.
QVector<Finding> check(
    const Project& project, const QHash<QString, Severity>& severities,
    const Progress& progress = [](int /*done*/, int /*all*/) {});

} // namespace ResourceCheck
