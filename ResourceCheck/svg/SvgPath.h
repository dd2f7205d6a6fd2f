#pragma once

#include <QStringView>

namespace ResourceCheck::SvgPath
{

/// Whether Qt Svg draws all of the path data. It stops at an unknown command, at a command with too few numbers, and
/// after 32,767 points.
bool isComplete(QStringView data);

} // namespace ResourceCheck::SvgPath
