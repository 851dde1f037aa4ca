// A picture in memory: LoadPicture returns one, and a picture box shows one and is painted on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <tl/expected.hpp>
#include <vector>

#include "forms/color.h"

namespace terramark::forms {

/// Rows from top to bottom, without padding; a pixel is 0xFFRRGGBB. Width and Height are pixels and
/// both 0 for the empty picture.
struct Raster {
  int Width = 0;
  int Height = 0;
  std::vector<std::uint32_t> Pixels;

  std::size_t IndexOf(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(Width) +
           static_cast<std::size_t>(x);
  }
};

/// The pixel of a colour; white for a colour of the screen's theme, which a picture cannot know.
inline std::uint32_t PixelOf(Color color) {
  if ((color & 0x80000000U) != 0) return 0xFFFFFFFF;
  return 0xFF000000U | (color & 0xFFU) << 16U | (color & 0xFF00U) | (color >> 16U & 0xFFU);
}

/// A loaded picture, shared and never changed; null for none.
using Picture = std::shared_ptr<const Raster>;

/// A picture, never null, or the reason why it cannot be read: a text to stand after a colon.
using LoadedPicture = tl::expected<Picture, std::string>;

}  // namespace terramark::forms
