#include "thumbnail/limits.h"

#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <exception>
#include <fstream>
#include <string_view>

namespace terramark::thumbnail {

namespace {

/// What a desktop may wait for is two seconds; ending takes some of them.
constexpr suseconds_t Patience = 1'800'000;
/// Bytes beyond what the program begins with: a picture of 8192 x 8192 takes 256 MiB, and all else
/// under 64.
constexpr rlim_t MostMemory = rlim_t{384} << 20U;

/// Bytes that the limit counts as taken; a checking allocator has set aside most of them.
rlim_t PresentMemory() {
  std::ifstream sizes("/proc/self/statm");
  rlim_t pages = 0;
  for (int field = 0; field < 6; ++field) sizes >> pages;  // the sixth is the data
  return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

/// Of what a signal may come in between; calls only what may be called then.
[[noreturn]] void RefuseAtOnce(std::string_view why) {
  (void)!write(STDERR_FILENO, why.data(), why.size());
  _exit(NoThumbnail);
}

}  // namespace

void Refuse(const std::string& why) {
  RefuseAtOnce("terramark-thumbnail: " + why + "\n");
}

void LimitCost() {
  std::signal(SIGALRM, [](int) { RefuseAtOnce("terramark-thumbnail: this takes too long\n"); });
  const itimerval once{{0, 0}, {Patience / 1'000'000, Patience % 1'000'000}};
  setitimer(ITIMER_REAL, &once, nullptr);

  std::set_terminate([] { RefuseAtOnce("terramark-thumbnail: the memory does not reach\n"); });
  const rlim_t most = PresentMemory() + MostMemory;
  const rlimit limit{most, most};
  setrlimit(RLIMIT_DATA, &limit);
}

}  // namespace terramark::thumbnail
