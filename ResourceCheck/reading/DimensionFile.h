#pragma once

#include "ResourceCheck/reading/IniFile.h"

#include <QSize>

namespace ResourceCheck
{

/// The dimensions for one display size.
struct DimensionFile {
    IniFile file;
    QSize size; // from the name of the file; invalid if the name is not a display size
};

} // namespace ResourceCheck
