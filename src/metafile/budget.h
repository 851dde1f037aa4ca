// What drawing one metafile may cost. A metafile of a few bytes may ask for hours; one that goes
// beyond a limit here is refused as a whole, so that no map is shown in part.
#pragma once

#include <chrono>
#include <cstdint>

namespace terramark::metafile {

/// The processor time, thirty times what the dearest of many real metafiles takes. The clock
/// decides: a price for each kind of record would have to be right for every kind.
constexpr std::chrono::milliseconds MaxDrawingTime{1000};

class Budget {
 public:
  /// The time counts from now on, on the thread that is calling.
  explicit Budget(std::chrono::nanoseconds time);

  /// To be called by every loop whose length the file decides, with the number of its steps: bytes,
  /// points or pixels, anything that takes nanoseconds. False once a limit is reached: draw nothing
  /// more. Asks the clock when thousands of steps have been reported; a loop of millions reports
  /// them in pieces, and stops.
  bool Spend(std::int64_t steps);
  /// The same for a call that takes microseconds at once: asks the clock.
  bool SpendCall() { return Spend(StepsPerQuestion); }
  /// To be called for an object that may stay in use while the metafile is drawn, with its size in
  /// bytes. One that is deleted counts too.
  bool Keep(std::int64_t bytes);

  /// Of something that would take too much.
  void UseUp() { usedUp_ = true; }
  bool IsUsedUp() const { return usedUp_; }

 private:
  static constexpr std::int64_t StepsPerQuestion = 50'000;
  /// Far beyond what real metafiles keep.
  static constexpr std::int64_t MaxKeptBytes = std::int64_t{128} * 1024 * 1024;

  std::chrono::nanoseconds end_;
  std::int64_t stepsLeft_ = StepsPerQuestion;
  std::int64_t keptBytes_ = 0;
  bool usedUp_ = false;
};

}  // namespace terramark::metafile
