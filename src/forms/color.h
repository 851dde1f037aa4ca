// Colour values of the forms layer.
#pragma once

#include <cstdint>

namespace terramark::forms {

/// A colour as 0x00BBGGRR, or one of the system colours below (top bit set).
using Color = std::uint32_t;

/// Colours of the screen's theme. The numbers only identify them.
inline constexpr Color SysWindow = 0x80000005;
inline constexpr Color SysWindowText = 0x80000008;
inline constexpr Color SysButtonFace = 0x8000000F;

}  // namespace terramark::forms
