// Reports in one line that the display does not answer, where the platform plugin would write many
// lines and abort.
#pragma once

namespace terramark::window {

/// Before the application is made. Holds back the messages about connecting to the display from
/// here on. If the connection fails, the process ends with EXIT_FAILURE, with one line about the
/// display if that is at fault. All other messages go to standard error.
void BeginDisplayConnection();

/// After the application is made: drops what was held back; messages go their usual way again.
void EndDisplayConnection();

}  // namespace terramark::window
