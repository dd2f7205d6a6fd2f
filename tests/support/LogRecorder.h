#pragma once

#include <QStringList>

/// Records Qt's message log instead of printing it, for as long as it lives.
class LogRecorder
{
public:
    LogRecorder();
    ~LogRecorder();

    /// The records since the last call, each as `[TYPE ][CATEGORY ]Class::function: text`. The type is left out for a
    /// warning, the category for "default". A record without file and line, or with a file name that is not relative
    /// to the repository, says so.
    QStringList take();
};
