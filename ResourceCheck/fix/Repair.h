#pragma once

#include "ResourceCheck/Finding.h"
#include "ResourceCheck/fix/LineEdit.h"

#include <optional>

namespace ResourceCheck
{

struct Resources;

namespace Repair
{

/// The one safe repair of a finding in this line, if there is one: the case of a path, blanks around a text, or an INI
/// entry that repeats the one before it.
std::optional<LineEdit> of(const Finding& finding, const QString& line, const Resources& resources);

} // namespace Repair

} // namespace ResourceCheck
