// The pixels that a flood may enter.
#pragma once

#include <cstdint>
#include <span>

namespace terramark::forms {

/// What stops a flood: pixels of a colour, or all others.
enum class FloodStops { AtColour, AtOtherColours };

/// Sets the bits of the pixels that a flood may enter, 64 a word from the lowest bit. The top byte
/// of the pixels and of the colour is ignored. There are as many words as needed; bits beyond the
/// pixels have no meaning.
void SetOpenBits(std::span<const std::uint32_t> pixels, std::uint32_t colour, FloodStops stops,
                 std::span<std::uint64_t> bits);

}  // namespace terramark::forms
