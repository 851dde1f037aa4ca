// The processor time of a thread.
#pragma once

#include <chrono>

namespace terramark::files {

/// The time for which the calling thread has had a processor; none passes while the machine is busy
/// elsewhere or the process is stopped. Asking takes less than a microsecond. Where the system does
/// not measure it, the time on a clock that runs evenly.
std::chrono::nanoseconds ThreadTime();

}  // namespace terramark::files
