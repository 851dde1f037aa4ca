#include "forms/borderfill.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "forms/flood.h"
#include "forms/floodbits.h"

namespace terramark::forms {

namespace {

struct FillPainter {
  void Run(int y, int left, int right) const { std::fill(Pixel(left, y), Pixel(right, y), Brush); }
  void PaintBits(int y, int left, std::uint32_t bits) const {
    PaintPixels({Pixel(left, y), Pixel(Image.Width, y)}, bits, Brush);
  }
  std::uint32_t* Pixel(int x, int y) const { return Image.Pixels.data() + Image.IndexOf(x, y); }

  Raster& Image;
  std::uint32_t Brush;
};

}  // namespace

void BorderFill(Raster& raster, std::span<const PixelPoint> seeds, Color brush, Color border) {
  const std::uint32_t stop = PixelOf(border);
  const FillPainter paint{raster, PixelOf(brush)};
  const auto open = [&](int y, std::span<std::uint64_t> bits) {
    SetOpenBits({paint.Pixel(0, y), paint.Pixel(raster.Width, y)}, stop, FloodStops::AtColour,
                bits);
  };
  Flooder(raster.Width, raster.Height, open, paint).From(seeds);
}

}  // namespace terramark::forms
