// Decodes a device-independent bitmap, the body of a bitmap file and of a metafile's blit records,
// after its header has been found sound.
#pragma once

#include <QByteArrayView>
#include <optional>

#include "forms/raster.h"
#include "pictures/graphicsobjects.h"

namespace terramark::pictures {

/// A bitmap's size in pixels, 1 or more each way, and the order of its rows.
struct DibShape {
  int Width = 0;
  int Height = 0;
  bool BottomUp = false;  // as is usual

  std::int64_t Pixels() const { return std::int64_t{Width} * Height; }
};

/// What the info header at the first byte of `dib` says; none when it is broken, of a kind that is
/// not known, or of a bitmap beyond the limits.
std::optional<DibShape> ShapeOfDib(QByteArrayView dib);

/// The bitmap that starts with its info header at the first byte of `dib`, of 1, 4, 8, 16, 24 or 32
/// bits a pixel, run-length coded or not. `bitsAt` is where its rows start; without it they follow
/// the colour table. Up to half of the rows' bytes may be missing and read as 0. Null for a bitmap
/// that is broken or too large; std::bad_alloc when the memory does not reach.
forms::Picture DecodeDib(QByteArrayView dib, std::optional<qsizetype> bitsAt);

/// The same with a colour table that holds two-byte numbers of `palette`'s entries.
forms::Picture DecodeDib(QByteArrayView dib, const Palette& palette);

}  // namespace terramark::pictures
