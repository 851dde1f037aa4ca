// The rules that a map must meet before it may be saved.
#pragma once

#include <cstdint>
#include <string>

#include "document/tables.h"

namespace terramark {

/// What a fault is about.
enum class Subject { Picture, Counts, Area, Region };

/// The outcome of the rules: Status 0 with the text for a good map, else the number and the text of
/// the first fault.
struct Verdict {
  std::int16_t Status = 0;
  std::string Message;
  Subject About{};
  /// Of the Area or the Region; else 0.
  std::int16_t Number = 0;
};

/// Tests the document rule by rule, in a fixed order, up to the first fault.
Verdict CheckMap(const Tables& tables);

}  // namespace terramark
