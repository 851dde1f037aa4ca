// What drawing one metafile may cost. A metafile of a few bytes may ask for hours; one that goes
// beyond a limit here is refused as a whole, so that no map is shown in part.
#pragma once

#include <chrono>
#include <cstdint>

namespace terramark::metafile {

/// The processor time for one metafile, many times what a real map takes (bench/README.md). The
/// clock decides: a price for each kind of record would have to be right for every kind.
constexpr std::chrono::milliseconds MaxDrawingTime{1000};
/// Bytes of the clips that SaveDC has saved, one for each pixel of the picture. A metafile that
/// saves more is refused.
constexpr std::int64_t MaxSavedClipBytes = std::int64_t{256} * 1024 * 1024;

/// The time and the memory that are left for one metafile. Once a limit is reached it stays used
/// up.
class Budget {
 public:
  /// `time` is processor time of the calling thread, from now on.
  explicit Budget(std::chrono::nanoseconds time);

  /// To be called by every loop whose length the file decides, with the number of its steps: bytes,
  /// points or pixels, anything that takes nanoseconds. False once a limit is reached: draw nothing
  /// more. Asks the clock when thousands of steps have been reported; a loop of millions reports
  /// them in pieces, and stops.
  bool Spend(std::int64_t steps);
  /// The same for a call that takes microseconds at once: asks the clock.
  bool SpendCall() { return Spend(StepsPerQuestion); }
  /// To be called for an object that may stay in use, with its size in bytes. It counts until the
  /// metafile is drawn, even when the object is deleted earlier. False when it is too much.
  bool Keep(std::int64_t bytes);
  /// To be called in place of something that would take too much.
  void UseUp() { usedUp_ = true; }
  bool IsUsedUp() const { return usedUp_; }

 private:
  static constexpr std::int64_t StepsPerQuestion = 50'000;
  /// Far more than the objects of real metafiles take.
  static constexpr std::int64_t MaxKeptBytes = std::int64_t{128} * 1024 * 1024;

  std::chrono::nanoseconds end_;
  std::int64_t stepsLeft_ = StepsPerQuestion;
  std::int64_t keptBytes_ = 0;
  bool usedUp_ = false;
};

}  // namespace terramark::metafile
