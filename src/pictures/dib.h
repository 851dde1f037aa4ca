// Decodes a device-independent bitmap, the body of a bitmap file and of a metafile's blit records.
#pragma once

#include <QByteArrayView>
#include <optional>

#include "forms/raster.h"
#include "pictures/bytesource.h"
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

/// The bitmap that starts with its info header at the first byte of `dib`: of 1, 2, 4, 8, 16, 24 or
/// 32 bits a pixel, or run-length coded of 4 or 8. `bitsAt` is where its rows start; without it
/// they follow the colour table. Up to half of the bytes of rows that are not coded may be missing
/// and read as 0. Pixels that run-length codes skip have the first colour, numbers beyond the table
/// are black, and an alpha channel has no meaning. Null for a bitmap that is broken, too large or
/// of another kind, or when a read fails; std::bad_alloc when the memory does not reach. Beside the
/// picture only some hundred kilobytes are held.
forms::Picture DecodeDib(ByteSource& dib, std::optional<qint64> bitsAt);
forms::Picture DecodeDib(QByteArrayView dib, std::optional<qsizetype> bitsAt);

/// The same with a colour table that holds two-byte numbers of `palette`'s entries.
forms::Picture DecodeDib(QByteArrayView dib, const Palette& palette);

}  // namespace terramark::pictures
