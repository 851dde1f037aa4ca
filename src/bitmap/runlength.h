// Bitmaps whose rows are coded as runs of equal pixels.
#pragma once

#include "bitmap/dibrows.h"
#include "forms/raster.h"

namespace terramark::bitmap {

/// Paints what is coded from byte `at` of `dib` on into `raster`, which is as large as the header
/// says, and leaves alone what the codes skip or do not reach. Runs end at the right edge, and
/// codes that break off end the picture. False when a read fails.
bool DecodeRunLengths(ByteSource& dib, const DibHeader& header, const DibColours& colours,
                      qint64 at, forms::Raster& raster);

}  // namespace terramark::bitmap
