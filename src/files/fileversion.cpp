#include "files/fileversion.h"

#include <algorithm>
#include <chrono>

namespace terramark::files {

namespace {

/// Longer than a clock tick of any kernel.
constexpr std::int64_t FineNanoseconds = 20'000'000;
/// The coarsest file systems count in steps of two seconds.
constexpr std::int64_t CoarseSeconds = 2;
constexpr std::int64_t NanosecondsPerSecond = 1'000'000'000;

/// Subtracts from the clock's time: the time of a file can be any number, and adding to it could
/// overflow.
Moment Before(const Moment& now, std::int64_t seconds, std::int64_t nanoseconds) {
  if (now.Nanoseconds >= nanoseconds) return {now.Seconds - seconds, now.Nanoseconds - nanoseconds};
  return {now.Seconds - seconds - 1, now.Nanoseconds - nanoseconds + NanosecondsPerSecond};
}

}  // namespace

Moment Moment::Now() {
  using namespace std::chrono;
  const auto now = duration_cast<nanoseconds>(system_clock::now().time_since_epoch());
  const auto whole = floor<seconds>(now);
  return {whole.count(), (now - whole).count()};
}

bool FileVersion::SettledBy(const Moment& now) const {
  const bool coarse = Modified.Nanoseconds == 0 && Changed.Nanoseconds == 0;
  const Moment limit = coarse ? Before(now, CoarseSeconds, 0) : Before(now, 0, FineNanoseconds);
  return std::max(Modified, Changed) < limit;
}

}  // namespace terramark::files
