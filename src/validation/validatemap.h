// The gate between editing and saving.
#pragma once

#include <cstdint>
#include <string>

namespace terramark {

struct Form1;

/// Judges the map. Status 0 for a good one, which is then said in green here; a fault's number and
/// text are left to the caller to show.
void ValidateMap(Form1& form, std::int16_t& status, std::string& message);

/// Validates and shows a fault in red. False for a map with a fault: the command ends there.
bool MapIsValid(Form1& form);

}  // namespace terramark
