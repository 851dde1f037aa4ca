// From the pixels of a row to the bits that a flood goes by, and back.
#pragma once

#include <cstdint>
#include <span>

namespace terramark::forms {

/// What stops a flood: pixels of a colour, or all others.
enum class FloodStops { AtColour, AtOtherColours };

/// Sets the bits of the pixels that a flood may enter, 64 a word from the lowest bit on; the top
/// byte of the pixels and of the colour counts for nothing. There are as many words as it takes;
/// bits past the pixels mean nothing.
void SetOpenBits(std::span<const std::uint32_t> pixels, std::uint32_t colour, FloodStops stops,
                 std::span<std::uint64_t> bits);

/// Paints those of the first 32 pixels whose bits are set, from the lowest bit on; the bits of
/// pixels that are not there do not matter.
void PaintPixels(std::span<std::uint32_t> pixels, std::uint32_t bits, std::uint32_t paint);

}  // namespace terramark::forms
