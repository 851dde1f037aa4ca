// Converts between the pixels of a row and the bits of a flood.
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

/// Paints those of the first 32 pixels whose bits are set, from the lowest bit on. Bits of pixels
/// that do not exist are ignored.
void PaintPixels(std::span<std::uint32_t> pixels, std::uint32_t bits, std::uint32_t paint);

}  // namespace terramark::forms
