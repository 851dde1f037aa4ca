// The limits of a bitmap, also of one within a metafile: a larger one is refused.
#pragma once

#include <cstdint>

namespace terramark::bitmap {

/// Pixels each way.
constexpr int MaxBitmapSide = 16384;
/// 8192 x 8192, which take 256 MiB.
constexpr std::int64_t MaxBitmapPixels = 67'108'864;
/// A run-length coded bitmap that claims more pixels for each byte is refused; real ones have
/// fewer.
constexpr std::int64_t MaxPixelsPerCodedByte = 1024;
/// No more run-length codes are read; the largest bitmap needs no more even with two bytes a pixel.
constexpr std::int64_t MaxCodedBytes = 4 * MaxBitmapPixels;

}  // namespace terramark::bitmap
