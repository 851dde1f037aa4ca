#include "files/fileversion.h"

#include <sys/stat.h>

#include <algorithm>
#include <ctime>

#include "files/descriptor.h"

namespace terramark::files {

namespace {

/// Longer than a clock tick of any kernel.
constexpr std::int64_t FineNanoseconds = 20'000'000;
/// The coarsest file systems count in steps of two seconds.
constexpr std::int64_t CoarseSeconds = 2;
constexpr std::int64_t NanosecondsPerSecond = 1'000'000'000;

Moment MomentOf(const timespec& time) {
  return {time.tv_sec, time.tv_nsec};
}

/// Subtracts from the clock's time: the time of a file can be any number, and adding to it could
/// overflow.
Moment Before(const Moment& now, std::int64_t seconds, std::int64_t nanoseconds) {
  if (now.Nanoseconds >= nanoseconds) return {now.Seconds - seconds, now.Nanoseconds - nanoseconds};
  return {now.Seconds - seconds - 1, now.Nanoseconds - nanoseconds + NanosecondsPerSecond};
}

}  // namespace

Moment Moment::Now() {
  timespec now{};
  ::clock_gettime(CLOCK_REALTIME, &now);
  return MomentOf(now);
}

bool FileVersion::SettledBy(const Moment& now) const {
  const bool coarse = Modified.Nanoseconds == 0 && Changed.Nanoseconds == 0;
  const Moment limit = coarse ? Before(now, CoarseSeconds, 0) : Before(now, 0, FineNanoseconds);
  return std::max(Modified, Changed) < limit;
}

Result<FileVersion> VersionOf(int file) {
  struct stat status {};
  const int error = ErrorOf([&] { return ::fstat(file, &status); });
  if (error != 0) return Failed(error);
  return FileVersion{status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
                     MomentOf(status.st_mtim), MomentOf(status.st_ctim)};
}

}  // namespace terramark::files
