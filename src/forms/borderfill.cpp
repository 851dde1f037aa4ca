#include "forms/borderfill.h"

#include <cstdint>
#include <vector>

namespace terramark::forms {

namespace {

std::uint32_t PixelOf(Color color) {
  return 0xFF000000U | (color & 0xFFU) << 16U | (color & 0xFF00U) | (color >> 16U & 0xFFU);
}

/// A row run whose pixels are all painted; its neighbours above and below are still to be seen.
struct Run {
  int Left;
  int Right;
  int Y;
};

class Filler {
 public:
  Filler(Raster& raster, Color brush, Color border)
      : raster_(raster),
        brush_(PixelOf(brush)),
        border_(PixelOf(border)),
        painted_(raster.Pixels.size(), false) {}

  void From(int x, int y) {
    if (x < 0 || y < 0 || x >= raster_.Width || y >= raster_.Height || !Open(x, y)) return;
    Paint(x, y);
    while (!pending_.empty()) {
      const Run run = pending_.back();
      pending_.pop_back();
      Spread(run, run.Y - 1);
      Spread(run, run.Y + 1);
    }
  }

 private:
  // The brush may have the border's colour or stand in the picture already, so what has been
  // painted is remembered apart from the pixels.
  bool Open(int x, int y) const {
    const std::size_t place = raster_.At(x, y);
    return !painted_[place] && (raster_.Pixels[place] | 0xFF000000U) != border_;
  }

  /// Paints the whole run round an open pixel; gives its right end.
  int Paint(int x, int y) {
    int left = x;
    while (left > 0 && Open(left - 1, y)) --left;
    int right = x;
    while (right + 1 < raster_.Width && Open(right + 1, y)) ++right;
    for (int i = left; i <= right; ++i) {
      raster_.Pixels[raster_.At(i, y)] = brush_;
      painted_[raster_.At(i, y)] = true;
    }
    pending_.push_back({left, right, y});
    return right;
  }

  void Spread(const Run& run, int y) {
    if (y < 0 || y >= raster_.Height) return;
    for (int x = run.Left; x <= run.Right; ++x) {
      if (Open(x, y)) x = Paint(x, y);
    }
  }

  Raster& raster_;
  const std::uint32_t brush_;
  const std::uint32_t border_;
  std::vector<bool> painted_;
  std::vector<Run> pending_;
};

}  // namespace

void BorderFill(Raster& raster, int seedX, int seedY, Color brush, Color border) {
  Filler(raster, brush, border).From(seedX, seedY);
}

}  // namespace terramark::forms
