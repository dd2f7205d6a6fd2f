#pragma once

#include "ResourceCheck/JsonFile.h"
#include "ResourceCheck/Rule.h"

/// Reports what keeps the text from being one JSON object, if anything does.
void reportFault(const JsonFile& file, const Report& report);

/// Reports each member of the object whose name an earlier one has. `kind` says what the names are, as in "alias".
void reportDuplicates(const JsonValue& object, const QString& kind, const Report& report);
