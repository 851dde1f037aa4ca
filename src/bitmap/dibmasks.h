// The colour channels of pixels of 16 bits or more: masks of any width and place.
#pragma once

#include <cstdint>
#include <optional>

namespace terramark::bitmap {

class ChannelMasks {
 public:
  /// The usual masks: for 16 bits five bits a channel, for 24 and 32 bits eight.
  static ChannelMasks Usual(int bitCount);
  /// None when a mask has holes, is beyond the bits of a pixel or overlaps another one, or when all
  /// are 0.
  static std::optional<ChannelMasks> Of(int bitCount, std::uint32_t red, std::uint32_t green,
                                        std::uint32_t blue);

  /// Whether a pixel's three low bytes are blue, green and red.
  bool PlainBytes() const;
  /// The pixel of a raster. A channel with all bits set is 0xFF, other values are rounded to the
  /// nearest; a channel without a mask is 0.
  std::uint32_t Pixel(std::uint32_t stored) const {
    return 0xFF000000U | red_.Value(stored) << 16U | green_.Value(stored) << 8U |
           blue_.Value(stored);
  }

 private:
  // A double holds 32 bits exactly, and no value is half way between two results.
  struct Channel {
    std::uint32_t Mask = 0;
    double Scale = 0;

    std::uint32_t Value(std::uint32_t stored) const {
      constexpr double Half = 0.5;
      return static_cast<std::uint32_t>(static_cast<std::int64_t>(stored & Mask) * Scale + Half);
    }
  };
  static Channel ChannelOf(std::uint32_t mask) { return {mask, mask == 0 ? 0 : 255.0 / mask}; }

  ChannelMasks(std::uint32_t red, std::uint32_t green, std::uint32_t blue)
      : red_(ChannelOf(red)), green_(ChannelOf(green)), blue_(ChannelOf(blue)) {}

  Channel red_;
  Channel green_;
  Channel blue_;
};

}  // namespace terramark::bitmap
