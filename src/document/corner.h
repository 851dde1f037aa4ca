// The fill corner of an Area's marker: its code, the marker's caption, the cycle of right presses.
#pragma once

#include <cstdint>
#include <string>

namespace terramark {

/// The caption of an Area's marker: the number with "^" for the top edge or "+" for the bottom
/// edge, in front for the left corner and behind for the right. A corner outside 0 to 3 gives the
/// bare NumberText.
std::string MarkerCaption(std::int16_t area, std::int16_t corner);

/// The next corner clockwise: 2, 0, 1, 3, 2. A corner outside 0 to 3 goes to 3.
std::int16_t NextCorner(std::int16_t corner);

}  // namespace terramark
