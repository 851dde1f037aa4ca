// The fill corner of an Area's marker: its code, the marker's caption, the cycle of right presses.
#pragma once

#include <cstdint>
#include <string>

namespace terramark {

/// Whether a code names a corner, 0 to 3, and on which edges that one lies. A code from a layout
/// that names none lies on neither.
inline bool IsCorner(std::int16_t corner) {
  return corner >= 0 && corner <= 3;
}
inline bool AtRight(std::int16_t corner) {
  return corner == 1 || corner == 3;
}
inline bool AtBottom(std::int16_t corner) {
  return corner == 2 || corner == 3;
}

/// The caption of an Area's marker: the number with "^" for the top edge or "+" for the bottom
/// edge, in front for the left corner and behind for the right. A corner outside 0 to 3 gives the
/// bare NumberText.
std::string MarkerCaption(std::int16_t area, std::int16_t corner);

/// The next corner clockwise: 2, 0, 1, 3, 2. A corner outside 0 to 3 goes to 3.
std::int16_t NextCorner(std::int16_t corner);

}  // namespace terramark
