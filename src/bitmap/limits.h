// What a bitmap may cost, also one within a metafile: a larger one is refused.
#pragma once

#include <cstdint>

namespace terramark::bitmap {

/// Pixels each way.
constexpr int MaxBitmapSide = 16384;
/// 8192 x 8192, which take 256 MiB.
constexpr std::int64_t MaxBitmapPixels = 67'108'864;
/// No real run-length coded picture packs more pixels into a byte.
constexpr std::int64_t MaxPixelsPerCodedByte = 1024;
/// Run-length codes are read so far; the largest bitmap takes no more even at two bytes a pixel.
constexpr std::int64_t MaxCodedBytes = 4 * MaxBitmapPixels;

}  // namespace terramark::bitmap
