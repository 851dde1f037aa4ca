// The fill corner of an Area's marker: its code, the marker's caption, the cycle of right presses.
#pragma once

#include <cstdint>
#include <string>

namespace terramark {

/// Whether a code names a corner, 0 to 3, and whether that corner is on the right and on the bottom
/// edge. A layout may contain other codes, which are on neither.
inline bool IsCorner(std::int16_t corner) {
  return corner >= 0 && corner <= 3;
}
inline bool AtRight(std::int16_t corner) {
  return corner == 1 || corner == 3;
}
inline bool AtBottom(std::int16_t corner) {
  return corner == 2 || corner == 3;
}

/// The caption of an Area's marker: its number with "^" for the top or "+" for the bottom edge,
/// before the number for the left and after it for the right corner. For a corner outside 0 to 3 it
/// is the bare NumberText.
std::string MarkerCaption(std::int16_t area, std::int16_t corner);

/// The next corner clockwise: 2, 0, 1, 3, 2. A corner outside 0 to 3 goes to 3.
std::int16_t NextCorner(std::int16_t corner);

}  // namespace terramark
