#pragma once

#include <QString>

namespace ResourceCheck
{

/// A place in a file. Lines and columns count from 1, columns in UTF-16 code units; 0 means the whole file or line.
struct Place {
    QString path;
    int line = 0;
    int column = 0;
};

} // namespace ResourceCheck
