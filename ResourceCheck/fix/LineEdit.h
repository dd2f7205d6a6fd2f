#pragma once

#include <QString>

namespace ResourceCheck
{

/// A change of one line of a file.
struct LineEdit {
    int line;        // from 1
    bool isRemoved;  // the whole line
    QString newText; // of the line, if it is not removed
};

} // namespace ResourceCheck
