// Flood fill up to a border colour.
#pragma once

#include <span>

#include "forms/color.h"
#include "forms/geometry.h"
#include "forms/raster.h"

namespace terramark::forms {

/// Paints brush over the 4-connected regions round the seeds that pixels of the border colour
/// bound; no other colour stops it. Seeds outside the raster or on the border paint nothing. The
/// picture is that of filling from seed after seed, and each pixel is painted once. Throws
/// std::bad_alloc, with nothing painted, when the memory does not reach.
void BorderFill(Raster& raster, std::span<const PixelPoint> seeds, Color brush, Color border);

}  // namespace terramark::forms
