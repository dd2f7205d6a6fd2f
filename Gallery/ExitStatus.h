#pragma once

#include <QString>

namespace Gallery
{

/// What the program ends with. With --report, 1 means that something has changed.
enum ExitStatus { Success = 0, Failure = 1, WrongUsage = 2, Incomplete = 3 };

/// Writes the message to stderr and returns the status.
int fail(ExitStatus status, const QString& message);

} // namespace Gallery
