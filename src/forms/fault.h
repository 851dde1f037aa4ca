// Why something cannot be done with a file, in words for the user.
#pragma once

#include <sys/types.h>

#include <string>

namespace terramark::forms {

/// Words that stand behind a colon, with a small letter first; empty when nothing has failed.
using Fault = std::string;

/// The system's words for an errno, in English as all that the editor says.
Fault FaultOf(int error);

/// What is wrong with a file of this mode, as stat gives it; empty for a regular one.
Fault FaultOfKind(mode_t mode);

}  // namespace terramark::forms
