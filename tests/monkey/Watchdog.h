// Ends the process with a message when it is not fed in time: a window that does not answer any more.
#pragma once

namespace Watchdog {

// Allows this much time until the next call.
void feed();
void calmDown();

} // namespace Watchdog
