// Writes a map as the text of a Map Layout.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "document/maplayout.h"

namespace terramark {

/// A time of the local clock and calendar.
struct SavingTime {
  std::chrono::year_month_day Day;
  std::chrono::hh_mm_ss<std::chrono::seconds> Clock;
};

struct LayoutWritten {
  std::string Text;
  /// The Area without neighbours at whose bridge line the text ends; 0 when it is complete.
  std::int16_t StoppedAtArea = 0;
};

/// A marker without a place gets 0, 0. A card symbol without a letter, or a missing one, is written
/// as "G".
LayoutWritten WriteLayout(const MapLayout& map, const SavingTime& time);

}  // namespace terramark
