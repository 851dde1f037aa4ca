#include "forms/floodbits.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace terramark::forms {

namespace {

constexpr std::size_t WordBits = 64;
constexpr std::size_t HalfBits = 32;
constexpr std::uint32_t ColourBits = 0xFFFFFF;

constexpr std::array<std::uint32_t, HalfBits> SingleBits = [] {
  std::array<std::uint32_t, HalfBits> bits{};
  for (std::size_t i = 0; i < HalfBits; ++i) bits[i] = std::uint32_t{1} << i;
  return bits;
}();

/// The bits of 32 pixels that have the colour. Without a branch and with a fixed count, so that
/// compilers generate vector code: a comparison, two ANDs and an OR.
std::uint32_t HalfWord(const std::uint32_t* pixels, std::uint32_t colour) {
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < HalfBits; ++i) {
    bits |= SingleBits[i] & ((pixels[i] & ColourBits) == colour ? ~0U : 0U);
  }
  return bits;
}

std::uint64_t WholeWord(const std::uint32_t* pixels, std::uint32_t colour) {
  return HalfWord(pixels, colour) | std::uint64_t{HalfWord(pixels + HalfBits, colour)} << HalfBits;
}

}  // namespace

void SetOpenBits(std::span<const std::uint32_t> pixels, std::uint32_t colour, FloodStops stops,
                 std::span<std::uint64_t> bits) {
  colour &= ColourBits;
  const std::uint64_t flip = stops == FloodStops::AtColour ? ~std::uint64_t{0} : 0;
  for (std::uint64_t& word : bits) {
    if (pixels.size() >= WordBits) {
      word = WholeWord(pixels.data(), colour) ^ flip;
      pixels = pixels.subspan(WordBits);
    } else {
      std::array<std::uint32_t, WordBits> last{};
      std::ranges::copy(pixels, last.begin());
      word = WholeWord(last.data(), colour) ^ flip;
    }
  }
}

}  // namespace terramark::forms
