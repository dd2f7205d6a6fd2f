#pragma once

#include "ResourceCheck/reading/JsonFile.h"
#include "ResourceCheck/rules/Rule.h"

/// Reports what keeps the text from being one JSON object, if anything does.
void reportFault(const JsonFile& file, const Report& report);

/// Reports each member of the object that is not of the type. `kind` says what the members are, as in "alias".
void reportOtherTypes(const JsonValue& object, JsonValue::Type type, const QString& kind, const Report& report);

/// Reports each member of the object whose name an earlier one has.
void reportDuplicates(const JsonValue& object, const QString& kind, const Report& report);
