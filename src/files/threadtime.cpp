#include "files/threadtime.h"

#include <ctime>

namespace terramark::files {

std::chrono::nanoseconds ThreadTime() {
  timespec time{};
  if (clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time) != 0) {
    return std::chrono::steady_clock::now().time_since_epoch();
  }
  return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

}  // namespace terramark::files
