#pragma once

#include <QString>

/// The messages of the service, on the standard error stream.
namespace TarnisModule::Log
{

/// Writes one line that begins with the name of the program. Control characters, which file names can contain, become
/// "?". A line that cannot be written is lost.
void write(QString message);

} // namespace TarnisModule::Log
