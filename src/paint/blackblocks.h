// Where a picture that is shown below its actual size has black. The borders of a map are black
// lines that may be one pixel wide; a shrunken picture of every second pixel would show them with
// gaps, as if they leaked.
#pragma once

#include <vector>

#include "forms/pixelbits.h"
#include "forms/raster.h"
#include "forms/zoom.h"

namespace terramark::paint {

class BlackBlocks {
 public:
  /// Of no picture.
  BlackBlocks() = default;
  /// Reads the whole picture, which may be null, once. Keeps a bit for each two by two of its
  /// pixels, and so on up to the smallest zoom. std::bad_alloc when memory runs out.
  explicit BlackBlocks(const forms::Picture& picture);

  /// For each pixel of the picture as it is shown at a zoom, whether any pixel of its block is
  /// black. The last block across and down has what is left at the picture's edge, too. Null at
  /// actual size and above, and without a picture. The zoom must be a step.
  const forms::PixelBits* At(forms::Magnification zoom) const;

 private:
  /// For blocks of 2, 4, 8 ... pixels.
  std::vector<forms::PixelBits> levels_;
};

}  // namespace terramark::paint
