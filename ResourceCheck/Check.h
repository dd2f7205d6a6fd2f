#pragma once

#include "ResourceCheck/Finding.h"

#include <QHash>
#include <QVector>

#include <functional>

struct Project;

/// Is told how many rules are done, of how many.
using Progress = std::function<void(int done, int all)>;

/// Applies every rule that is not switched off, each with its own severity or the one given for its name. The findings
/// are sorted by place.
QVector<Finding> check(
    const Project& project, const QHash<QString, Severity>& severities,
    const Progress& progress = [](int /*done*/, int /*all*/) {});
