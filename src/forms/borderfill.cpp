#include "forms/borderfill.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "forms/flood.h"
#include "forms/openbits.h"

namespace terramark::forms {

void BorderFill(Raster& raster, std::span<const PixelPoint> seeds, Color brush, Color border) {
  const std::uint32_t paint = PixelOf(brush);
  const std::uint32_t stop = PixelOf(border);
  const auto width = static_cast<std::size_t>(raster.Width);
  std::uint32_t* const pixels = raster.Pixels.data();
  const auto open = [&](int y, std::span<std::uint64_t> bits) {
    SetOpenBits({pixels + raster.At(0, y), width}, stop, FloodStops::AtColour, bits);
  };
  const auto fill = [&](int y, int left, int right) {
    std::fill(pixels + raster.At(left, y), pixels + raster.At(right, y), paint);
  };
  Flooder(raster.Width, raster.Height, open, fill).From(seeds);
}

}  // namespace terramark::forms
