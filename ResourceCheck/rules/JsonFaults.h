#pragma once

#include "ResourceCheck/reading/JsonFile.h"
#include "ResourceCheck/rules/Rule.h"

namespace ResourceCheck
{

/// Reports why the file is not a JSON object, if it is not.
void reportFault(const JsonFile& file, const Report& report);

/// Reports each member of the object that does not have the type. `kind` is the noun for its members, such as "alias".
void reportOtherTypes(const JsonValue& object, JsonValue::Type type, const QString& kind, const Report& report);

/// Reports each member of the object that has the name of an earlier one.
void reportDuplicates(const JsonValue& object, const QString& kind, const Report& report);

} // namespace ResourceCheck
