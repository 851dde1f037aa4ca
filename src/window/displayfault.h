// Tells in one line that the display does not answer, where the platform would write many and
// abort.
#pragma once

namespace terramark::window {

/// Before the application is made. The messages about joining the display are held back from here
/// on; if that fails, the process ends with EXIT_FAILURE, and one line tells of it where the
/// display is at fault. All other messages go to standard error.
void BeginDisplayConnection();

/// Once the application is made: what was held back is dropped, and messages go their usual way.
void EndDisplayConnection();

}  // namespace terramark::window
