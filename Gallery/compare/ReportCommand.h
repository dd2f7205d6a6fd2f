#pragma once

namespace Gallery
{

struct Options;

/// What the option --report does: writes the report, prints the number of changes and returns the exit status of the
/// program. What cannot be read or written is named on stderr.
int writeReport(const Options& options);

} // namespace Gallery
