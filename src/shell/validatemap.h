// The gate between editing and saving.
#pragma once

namespace terramark {

struct Form1;

/// Judges the map, and says in green that it is good, or in red its first fault. False for a map
/// with a fault: the command ends there.
bool ValidateMap(Form1& form);

}  // namespace terramark
