#include "forms/borderfill.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace terramark::forms {

namespace {

/// What a painted pixel holds until the fill is over. The brush may have the border's colour or
/// stand in the picture already; this stands in no picture.
constexpr std::uint32_t Painted = 0;

struct Run {
  int Left;
  int Right;
  int Y;
};

class Filler {
 public:
  Filler(Raster& raster, Color border) : raster_(raster), border_(PixelOf(border)) {}

  void From(int x, int y, Color brush) {
    if (x < 0 || y < 0 || x >= raster_.Width || y >= raster_.Height || !Open(x, y)) return;
    Paint(x, y);
    // The list grows while it is walked.
    for (std::size_t next = 0; next < runs_.size();) {
      const Run run = runs_[next++];
      Spread(run, run.Y - 1);
      Spread(run, run.Y + 1);
    }
    for (const Run& run : runs_) SetPixels(run, PixelOf(brush));
  }

 private:
  bool Open(int x, int y) const {
    const std::uint32_t pixel = raster_.Pixels[raster_.At(x, y)];
    return pixel != Painted && pixel != border_;
  }

  /// Paints the whole run round an open pixel; gives its right end.
  int Paint(int x, int y) {
    int left = x;
    while (left > 0 && Open(left - 1, y)) --left;
    int right = x;
    while (right + 1 < raster_.Width && Open(right + 1, y)) ++right;
    runs_.push_back({left, right, y});
    SetPixels(runs_.back(), Painted);
    return right;
  }

  void SetPixels(const Run& run, std::uint32_t pixel) {
    const auto row = raster_.Pixels.begin() + static_cast<std::ptrdiff_t>(raster_.At(0, run.Y));
    std::fill(row + run.Left, row + run.Right + 1, pixel);
  }

  void Spread(const Run& run, int y) {
    if (y < 0 || y >= raster_.Height) return;
    for (int x = run.Left; x <= run.Right; ++x) {
      if (Open(x, y)) x = Paint(x, y);
    }
  }

  Raster& raster_;
  const std::uint32_t border_;
  /// Painted so far, in that order; the neighbours of the later ones are still to be seen.
  std::vector<Run> runs_;
};

}  // namespace

void BorderFill(Raster& raster, int seedX, int seedY, Color brush, Color border) {
  Filler(raster, border).From(seedX, seedY, brush);
}

}  // namespace terramark::forms
