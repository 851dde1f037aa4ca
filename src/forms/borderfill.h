// Flood fill up to a border colour.
#pragma once

#include <span>

#include "forms/color.h"
#include "forms/geometry.h"
#include "forms/pixelbits.h"
#include "forms/raster.h"

namespace terramark::forms {

/// The 4-connected regions around the seeds that pixels of the border colour bound; no other colour
/// stops it. Seeds outside the raster or on the border add nothing. Throws std::bad_alloc when
/// memory runs out.
PixelBits BorderFill(const Raster& raster, std::span<const PixelPoint> seeds, Color border);

}  // namespace terramark::forms
