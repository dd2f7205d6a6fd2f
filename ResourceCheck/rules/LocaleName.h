#pragma once

#include <QString>

namespace ResourceCheck
{

/// Whether Qt knows a locale by this name: `de`, `de_AT`, `zh_Hans` or `zh_Hans_CN`. Any script is accepted, because Qt
/// does not list the codes of the scripts that it knows.
bool isLocaleName(const QString& name);

} // namespace ResourceCheck
