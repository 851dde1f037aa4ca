// What a picture may cost: the caps on files, sizes, numbers and work. A file beyond them is
// refused, or drawn as far as they reach.
#pragma once

#include <cstddef>
#include <cstdint>

namespace terramark::pictures {

// Of any picture.

/// Longer metafiles are not read; a bitmap's file may have any length.
constexpr std::size_t MaxMetafileBytes = std::size_t{64} * 1024 * 1024;
/// The box that a metafile is drawn for is cut down to this, in pixels each way.
constexpr int MaxPictureBoxSide = 4096;

// Of a bitmap, also within a metafile.

/// Pixels each way.
constexpr int MaxBitmapSide = 16384;
/// 8192 x 8192, which take 256 MiB.
constexpr std::int64_t MaxBitmapPixels = 67'108'864;
/// No real run-length coded picture packs more pixels into a byte.
constexpr std::int64_t MaxPixelsPerCodedByte = 1024;
/// Run-length codes are read so far; the largest bitmap takes no more even at two bytes a pixel.
constexpr std::int64_t MaxCodedBytes = 4 * MaxBitmapPixels;

// Of a metafile.

constexpr int MaxMetafileRecords = 1'000'000;
/// Objects at a time; a new one beyond is dropped.
constexpr std::size_t MaxObjects = 65536;
/// Levels of SaveDC; a save beyond is dropped.
constexpr std::size_t MaxSaves = 256;
constexpr std::ptrdiff_t MaxPaletteEntries = 1024;
/// Letters of one text; the rest is not drawn.
constexpr std::ptrdiff_t MaxLetters = 4096;
constexpr int MaxPenWidth = 65536;  // pixels
/// Pixels each way; larger ellipses and round rectangles are not drawn.
constexpr int MaxRoundSide = 65536;
/// Chords that stand for an arc.
constexpr int MaxArcSteps = 20000;
constexpr int MaxLetterSize = 4096;  // pixels
/// Fonts that are kept with their letters; one more drops them all.
constexpr std::size_t MaxKeptFonts = 64;
/// Pixels either way to which mapped points are limited.
constexpr double MaxDevice = 1 << 24;

/// The work one metafile may cost. A unit stands for at most four nanoseconds of a processor of the
/// year 2020, so that no file takes more than about a second; whatever is sampled, made, united or
/// painted is charged for, seen or not.
constexpr std::int64_t WorkLimit = 300'000'000;

}  // namespace terramark::pictures
