#pragma once

#include "ResourceCheck/reading/JsonFile.h"
#include "ResourceCheck/rules/Rule.h"

namespace ResourceCheck
{

/// Reports what keeps a text file from being a flat JSON object of strings.
void reportTextFaults(const JsonFile& file, const Report& report);

/// Reports what keeps a mapping table from being a JSON object of aliases, which are objects of paths.
void reportTableFaults(const JsonFile& file, const Report& report);

/// Reports each member of the object that has the name of an earlier one.
void reportDuplicates(const JsonValue& object, const QString& kind, const Report& report);

} // namespace ResourceCheck
