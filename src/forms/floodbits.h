// The pixels that a flood may enter.
#pragma once

#include <cstdint>
#include <span>

namespace terramark::forms {

/// What stops a flood: pixels of a colour, or all others.
enum class FloodStops { AtColour, AtOtherColours };

/// Overwrites `bits`: set for each pixel that a flood may enter, else clear, 64 pixels a word from
/// the lowest bit. The top byte of the pixels and of the colour is ignored. `bits` has one word for
/// every 64 pixels begun; bits beyond the last pixel have no meaning.
void SetOpenBits(std::span<const std::uint32_t> pixels, std::uint32_t colour, FloodStops stops,
                 std::span<std::uint64_t> bits);

}  // namespace terramark::forms
