// The processor time of a thread.
#pragma once

#include <chrono>

namespace terramark::files {

/// The time for which the calling thread has had a processor; none passes while the machine is busy
/// elsewhere or the process is stopped. Asking takes less than a microsecond. 0 if the system does
/// not measure it.
std::chrono::nanoseconds ThreadTime();

}  // namespace terramark::files
