#include "bitmap/dibmasks.h"

#include <bit>

namespace terramark::bitmap {
namespace {

bool HasHoles(std::uint32_t mask) {
  return std::popcount(mask) + std::countl_zero(mask) + std::countr_zero(mask) != 32 && mask != 0;
}

}  // namespace

ChannelMasks ChannelMasks::Usual(int bitCount) {
  if (bitCount == 16) return {0x7C00, 0x03E0, 0x001F};
  return {0xFF0000, 0x00FF00, 0x0000FF};
}

std::optional<ChannelMasks> ChannelMasks::Of(int bitCount, std::uint32_t red, std::uint32_t green,
                                             std::uint32_t blue) {
  const std::uint32_t all = red | green | blue;
  const bool meet = ((red & green) | (green & blue) | (blue & red)) != 0;
  if (all == 0 || meet || HasHoles(red) || HasHoles(green) || HasHoles(blue)) return std::nullopt;
  if (bitCount < 32 && all >> bitCount != 0) return std::nullopt;
  return ChannelMasks(red, green, blue);
}

bool ChannelMasks::PlainBytes() const {
  return red_.Mask == 0xFF0000 && green_.Mask == 0x00FF00 && blue_.Mask == 0x0000FF;
}

}  // namespace terramark::bitmap
