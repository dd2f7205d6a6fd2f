#pragma once

#include <QStringList>

/// Groups of a color file with the same meaning, such as day and night.
namespace ResourceFormat::Themes
{

/// Whether groups with these keys are themes of each other: they share more than half of the keys of the larger group.
bool areThemes(const QStringList& keys, const QStringList& others);

} // namespace ResourceFormat::Themes
