#pragma once

class QCoreApplication;

/// What happens at SIGTERM and SIGINT.
namespace TarnisModule::Termination
{

/// From now on, these signals quit the event loop. If the process still runs half a second later, because a thread
/// waits for the bus, a file or the log, it ends at once with exit status 0. Call it once.
void install(QCoreApplication& application);

} // namespace TarnisModule::Termination
