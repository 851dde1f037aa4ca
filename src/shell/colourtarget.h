// What the scroll bars of the colour panel edit, as RGBFrame.Tag holds it: "0" to "3" for a row of
// PlayerRGB, "R" and a number for a Region, or nothing.
#pragma once

#include <cstdint>

namespace terramark {

inline constexpr char NoColourTarget[] = "-1";
inline constexpr char RegionTarget = 'R';
/// The PlColor button of the current Region; those before it are the rows of PlayerRGB.
inline constexpr std::int16_t RegionButton = 4;

}  // namespace terramark
