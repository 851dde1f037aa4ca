// What one metafile may cost: the caps on its file, its size, its numbers and its work. A file
// beyond them is refused, or drawn as far as they reach.
#pragma once

#include <cstddef>
#include <cstdint>

namespace terramark::metafile {

/// Longer files are not read.
constexpr std::size_t MaxMetafileBytes = std::size_t{64} * 1024 * 1024;
/// The box that a metafile is drawn for is cut down to this, in pixels each way.
constexpr int MaxPictureBoxSide = 4096;

/// Records of a file; what follows is not played.
constexpr std::size_t MaxMetafileRecords = 1'000'000;
/// Objects at a time; a new one beyond is dropped.
constexpr std::size_t MaxObjects = 65536;
/// Levels of SaveDC; a save beyond is dropped.
constexpr std::size_t MaxSaves = 256;
/// Colours of a palette; the rest is left out.
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
constexpr std::size_t MaxCachedFonts = 64;
/// Pixels either way to which mapped points are limited.
constexpr double MaxDevice = 1 << 24;

/// The work one metafile may cost. A unit stands for at most four nanoseconds of a processor of the
/// year 2020, so that no file takes more than about a second; whatever is sampled, made, united or
/// painted is charged for, seen or not.
constexpr std::int64_t WorkLimit = 300'000'000;

}  // namespace terramark::metafile
