// Ctrl+C and the stop of a service end a run in an orderly way.
#pragma once

namespace norvane::command
{

/// From now on the first SIGINT or SIGTERM is remembered for stopSignal(); a second one has its default
/// effect. A signal that is ignored, such as that of a shell's background job, is still ignored. SIGPIPE is
/// ignored: a reader that leaves must not end work with a register.
void catchStopSignals();

/// The number of the signal that asks the run to stop, 0 before one.
[[nodiscard]] int stopSignal();

/// To be called where a run can stop: everything stored so far is consistent.
/// @throws RuntimeFailure with Failure::UserInterrupt after a signal.
void stopIfSignalled();
/// The same for work that asks whether to go on. @return true.
bool untilSignalled();

} // namespace norvane::command
