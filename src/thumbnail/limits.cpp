#include "thumbnail/limits.h"

#include <pthread.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>

#include <csignal>
#include <cstddef>
#include <exception>
#include <fstream>

#include "thumbnail/ending.h"

namespace terramark::thumbnail {

namespace {

/// A desktop waits for about two seconds; ending the program takes some of them.
constexpr suseconds_t TimeLimit = 1'800'000;
/// In bytes, beyond what the program has at its start: a picture of 8192 x 8192 takes 256 MiB, and
/// all else less than 64.
constexpr rlim_t MaxMemoryBytes = rlim_t{360} << 20U;
/// In bytes. Qt scales a picture with a thread for each processor, and the limit counts the whole
/// stack of a thread: with the usual size a machine with many processors would refuse a large
/// picture.
constexpr std::size_t ThreadStack = std::size_t{256} << 10U;

/// The bytes that the limit counts as used; a checking allocator has reserved most of them.
rlim_t PresentMemory() {
  std::ifstream sizes("/proc/self/statm");
  rlim_t pages = 0;
  for (int field = 0; field < 6; ++field) sizes >> pages;  // the sixth is the data
  return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

}  // namespace

void LimitCost() {
  std::signal(SIGPIPE, SIG_IGN);  // the status tells those too who do not listen
  std::signal(SIGALRM, [](int) { Refuse("this takes too long"); });
  const itimerval once{{0, 0}, {TimeLimit / 1'000'000, TimeLimit % 1'000'000}};
  setitimer(ITIMER_REAL, &once, nullptr);
  // The caller may have blocked the signal, which a new process inherits.
  sigset_t alarm;
  sigemptyset(&alarm);
  sigaddset(&alarm, SIGALRM);
  sigprocmask(SIG_UNBLOCK, &alarm, nullptr);

  pthread_attr_t threads;
  pthread_attr_init(&threads);
  pthread_attr_setstacksize(&threads, ThreadStack);
  pthread_setattr_default_np(&threads);
  pthread_attr_destroy(&threads);
  // Any other exception that is not caught is a mistake in the program.
  std::set_terminate([] { Refuse("the memory does not reach"); });
  const rlim_t most = PresentMemory() + MaxMemoryBytes;
  const rlimit limit{most, most};
  setrlimit(RLIMIT_DATA, &limit);
}

}  // namespace terramark::thumbnail
