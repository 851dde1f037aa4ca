// The limits of a metafile: its file, sizes, numbers and work. A file beyond them is refused, or
// drawn up to the limit.
#pragma once

#include <cstddef>
#include <cstdint>

namespace terramark::metafile {

/// Larger files are not read.
constexpr std::size_t MaxMetafileBytes = std::size_t{64} * 1024 * 1024;
/// Pixels each way; the box that a metafile is drawn for is reduced to this.
constexpr int MaxPictureBoxSide = 4096;

/// Further records are not played.
constexpr std::size_t MaxMetafileRecords = 1'000'000;
/// Objects at the same time; further ones are dropped.
constexpr std::size_t MaxObjects = 65536;
/// Levels of SaveDC; further saves are ignored.
constexpr std::size_t MaxSaves = 256;
/// Colours of a palette; further ones are left out.
constexpr std::ptrdiff_t MaxPaletteEntries = 1024;
/// Letters of one text; further ones are not drawn.
constexpr std::ptrdiff_t MaxLetters = 4096;
constexpr int MaxPenWidth = 65536;  // pixels
/// Pixels each way; larger ellipses and round rectangles are not drawn.
constexpr int MaxRoundSide = 65536;
/// The straight lines that approximate an arc.
constexpr int MaxArcSteps = 20000;
constexpr int MaxLetterSize = 4096;  // pixels
/// Fonts in the cache, with their letters; one more empties it.
constexpr std::size_t MaxCachedFonts = 64;
/// Mapped points are limited to so many pixels each way.
constexpr double MaxDevice = 1 << 24;

/// The work that one metafile may cost. A unit takes at most four nanoseconds on a processor of
/// 2020, so that no file takes longer than about a second. Everything that is read, made, combined
/// or painted is charged, visible or not.
constexpr std::int64_t WorkLimit = 300'000'000;

}  // namespace terramark::metafile
