// The fixed colours of the editor, and colours made from components.
#pragma once

#include <algorithm>
#include <cstdint>

#include "document/tables.h"
#include "forms/color.h"

namespace terramark {

// Entries 2, 4, 8, 0 and 15 of the 16-colour palette, as 0x00BBGGRR.
inline constexpr forms::Color ClrGreen = 0x00008000;  // results, and the blank message bar
inline constexpr forms::Color ClrRed = 0x00000080;    // faults
inline constexpr forms::Color ClrGrey = 0x00808080;   // background of a marked Area
inline constexpr forms::Color ClrBlack = 0x00000000;  // background of a plain marker
inline constexpr forms::Color ClrWhite = 0x00FFFFFF;  // a marker without a Region's colour

/// The colour of three components, each limited to 0 to 255.
inline forms::Color ColourOf(const Components& rgb) {
  const auto part = [](std::int16_t component) {
    return static_cast<forms::Color>(std::clamp<std::int16_t>(component, 0, 255));
  };
  return part(rgb[0]) | part(rgb[1]) << 8U | part(rgb[2]) << 16U;
}

}  // namespace terramark
