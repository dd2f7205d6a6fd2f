#pragma once

#include "ResourceCheck/fix/LineEdit.h"

namespace ResourceCheck
{

/// A change of a text from one place to another. Lines and columns start at 1, columns count UTF-16 code units, and the
/// end is behind the last replaced character.
struct Replacement {
    /// The smallest replacement that makes the edit of the line. `isLast`: no line break follows.
    static Replacement of(const LineEdit& edit, const QString& line, bool isLast);

    int startLine;
    int startColumn;
    int endLine;
    int endColumn;
    QString text; // empty: only removed
};

} // namespace ResourceCheck
