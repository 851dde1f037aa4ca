// Bitmaps whose rows are coded as runs of equal pixels.
#pragma once

#include "bitmap/dibrows.h"
#include "forms/raster.h"

namespace terramark::bitmap {

/// Paints the codes from byte `at` of `dib` into `raster`, which has the size in the header; pixels
/// that the codes skip or do not reach are unchanged. Runs end at the right edge, and the picture
/// ends where the codes end. False when a read fails.
bool DecodeRunLengths(ByteSource& dib, const DibHeader& header, const DibColours& colours,
                      qint64 at, forms::Raster& raster);

}  // namespace terramark::bitmap
