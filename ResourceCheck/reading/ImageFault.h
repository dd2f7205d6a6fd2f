#pragma once

#include <QFileInfo>
#include <QString>

namespace ResourceCheck
{

/// Why the image file cannot be displayed as what its suffix says, and what to do; null if it can.
QString imageFault(const QFileInfo& file);

} // namespace ResourceCheck
