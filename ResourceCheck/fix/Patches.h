#pragma once

#include "ResourceCheck/Finding.h"
#include "ResourceCheck/fix/Patch.h"

#include <QVector>

namespace ResourceCheck
{

struct Resources;

namespace Patches
{

/// The repairs of all findings that have one safe repair, one patch for each file.
QVector<Patch> of(const QVector<Finding>& findings, const Resources& resources);

/// Sets the repair of each finding that has one safe repair. Each is made for the files as they are, and can be applied
/// without the others.
void addRepairs(QVector<Finding>& findings, const Resources& resources);

} // namespace Patches

} // namespace ResourceCheck
