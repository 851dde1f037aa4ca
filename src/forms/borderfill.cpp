#include "forms/borderfill.h"

#include <cstddef>
#include <cstdint>

#include "forms/flood.h"
#include "forms/floodbits.h"

namespace terramark::forms {

PixelBits BorderFill(const Raster& raster, std::span<const PixelPoint> seeds, Color border) {
  const std::uint32_t stop = PixelOf(border);
  const std::span<const std::uint32_t> pixels(raster.Pixels);
  const auto width = static_cast<std::size_t>(raster.Width);
  const auto open = [&](int y, std::span<std::uint64_t> bits) {
    SetOpenBits(pixels.subspan(raster.IndexOf(0, y), width), stop, FloodStops::AtColour, bits);
  };
  return Flooder(raster.Width, raster.Height, open).From(seeds);
}

}  // namespace terramark::forms
