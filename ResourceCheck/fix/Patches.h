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

} // namespace Patches

} // namespace ResourceCheck
