// Decodes a device-independent bitmap, the body of a bitmap file and of a metafile's blit records.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "bitmap/bytesource.h"
#include "bitmap/dibheader.h"
#include "forms/raster.h"

namespace terramark::bitmap {

/// Decodes the bitmap whose header was read from the first byte of `dib`: with 1, 2, 4, 8, 16, 24
/// or 32 bits a pixel, or run-length coded with 4 or 8. `bitsAt` is where its rows begin; without
/// it, or when it cannot be right, they follow the colour table. Up to half of the bytes of uncoded
/// rows may be missing, and read as 0. Pixels that run-length codes skip have the first colour,
/// numbers beyond the table are black, and an alpha channel is ignored. Null for a broken bitmap,
/// or when a read fails; std::bad_alloc when memory runs out. Uses only some hundred kilobytes
/// besides the picture.
forms::Picture DecodeDib(ByteSource& dib, const DibHeader& header, std::optional<qint64> bitsAt);

/// The same for a colour table of two-byte numbers of `palette`'s entries, which are pixels of a
/// raster; numbers beyond them are black. A bitmap without such a table is decoded as usual.
forms::Picture DecodeDibByPalette(ByteSource& dib, const DibHeader& header,
                                  std::span<const std::uint32_t> palette);

}  // namespace terramark::bitmap
