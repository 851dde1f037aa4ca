// A picture in memory: what LoadPicture gives and what a picture box shows and is painted on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace terramark::forms {

/// Rows from top to bottom, without padding; a pixel is 0xFFRRGGBB. Width and Height are pixels and
/// both 0 for the empty picture.
struct Raster {
  int Width = 0;
  int Height = 0;
  std::vector<std::uint32_t> Pixels;

  std::size_t At(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(Width) +
           static_cast<std::size_t>(x);
  }
};

/// A loaded picture, shared and never written to; null stands for a picture that cannot be read.
using Picture = std::shared_ptr<const Raster>;

}  // namespace terramark::forms
