// Flood fill up to a border colour.
#pragma once

#include "forms/color.h"
#include "forms/raster.h"

namespace terramark::forms {

/// Paints brush over the 4-connected region round the seed that pixels of the border colour bound;
/// no other colour stops it. A seed outside the raster or on the border paints nothing. Works row
/// run by row run without recursion; each painted pixel is looked at a fixed number of times.
void BorderFill(Raster& raster, int seedX, int seedY, Color brush, Color border);

}  // namespace terramark::forms
