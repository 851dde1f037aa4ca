// The limits of a metafile: its file, sizes and numbers. A file beyond them is refused, or drawn up
// to the limit. What drawing may cost is in budget.h.
#pragma once

#include <cstddef>

namespace terramark::metafile {

/// Larger files are not read.
constexpr std::size_t MaxMetafileBytes = std::size_t{64} * 1024 * 1024;
/// Pixels each way; the box that a metafile is drawn for is reduced to this.
constexpr int MaxPictureBoxSide = 4096;

/// A metafile with so many records is not drawn.
constexpr std::size_t MaxMetafileRecords = 1'000'000;
/// Objects at the same time; further ones are dropped.
constexpr std::size_t MaxObjects = 65536;
/// Levels of SaveDC; further saves are ignored.
constexpr std::size_t MaxSaves = 256;
/// Colours of a palette; further ones are left out.
constexpr std::ptrdiff_t MaxPaletteEntries = 1024;
/// Bytes of one text; further ones are not drawn.
constexpr std::ptrdiff_t MaxLetters = 4096;
/// Pixels; a wider pen draws as this one.
constexpr int MaxPenWidth = 65536;
/// Pixels each way; ellipses and round corners that are larger are not drawn.
constexpr int MaxRoundSide = 65536;
/// At most so many straight lines approximate an arc.
constexpr int MaxArcSteps = 20000;
/// Pixels; a larger font draws in this size.
constexpr int MaxLetterSize = 4096;
/// Fonts in the cache, with their letters; one more empties it.
constexpr std::size_t MaxCachedFonts = 64;
/// Mapped points are limited to so many pixels each way.
constexpr double MaxDevice = 1 << 24;

}  // namespace terramark::metafile
