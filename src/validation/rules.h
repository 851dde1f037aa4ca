// The rules that a map must meet before it can be saved.
#pragma once

#include <cstdint>
#include <string>

#include "document/tables.h"

namespace terramark {

/// What a fault is about.
enum class Subject { Picture, Counts, Area, Region };

/// The result of the rules: Status 0 and a text for a good map, otherwise the number and the text
/// of the first fault.
struct Verdict {
  std::int16_t Status = 0;
  std::string Message;
  Subject About{};
  /// The number of the Area or the Region; otherwise 0.
  std::int16_t Number = 0;
};

/// Tests the rules one by one, in a fixed order, up to the first fault.
Verdict CheckMap(const Tables& tables);

}  // namespace terramark
