// Flood fill up to a border colour.
#pragma once

#include <span>

#include "forms/color.h"
#include "forms/geometry.h"
#include "forms/raster.h"

namespace terramark::forms {

/// Paints `brush` over the 4-connected regions around the seeds that pixels of the border colour
/// bound; no other colour stops it. Seeds outside the raster or on the border paint nothing. The
/// result is the same as filling from one seed after another, and each pixel is painted once.
/// Throws std::bad_alloc, with nothing painted, when memory runs out.
void BorderFill(Raster& raster, std::span<const PixelPoint> seeds, Color brush, Color border);

}  // namespace terramark::forms
