// Flood fill up to a border colour.
#pragma once

#include <span>

#include "forms/color.h"
#include "forms/geometry.h"
#include "forms/pixelbits.h"
#include "forms/raster.h"

namespace terramark::forms {

/// The pixels that are 4-connected with a seed without crossing a pixel of the border colour; no
/// other colour stops the fill. Seeds outside the raster or on the border add nothing. Throws
/// std::bad_alloc when memory runs out.
PixelBits BorderFill(const Raster& raster, std::span<const PixelPoint> seeds, Color border);

}  // namespace terramark::forms
