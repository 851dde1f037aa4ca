// What a bitmap's info header says, and where the colour table and the rows are that follow it.
#pragma once

#include <optional>

#include "bitmap/bytesource.h"
#include "bitmap/dibmasks.h"

namespace terramark::bitmap {

/// Of a bitmap that is of a known kind and within the limits. Offsets and lengths are in bytes, and
/// offsets count from the header's first byte.
struct DibHeader {
  int Width = 0;  // pixels, 1 or more, as the height
  int Height = 0;
  bool BottomUp = true;  // the first stored row is the lowest
  int BitCount = 0;      // a pixel's: 1, 2, 4, 8, 16, 24 or 32
  bool RunLength = false;
  bool Core = false;  // the oldest header, whose colours take three bytes
  ChannelMasks Masks = ChannelMasks::Usual(32);  // of 16 bits or more
  qint64 TableAt = 0;
  qint64 Colours = 0;  // in the table, which may hold more than the pixels can name

  /// Those that the pixels can name, 256 at most.
  int UsedColours() const;
  qint64 EntryBytes() const { return Core ? 3 : 4; }
  /// Where the table ends when its entries take so many bytes.
  qint64 TableEnd(qint64 entryBytes) const { return TableAt + Colours * entryBytes; }
  qint64 RowBytes() const { return (qint64{Width} * BitCount + 31) / 32 * 4; }
  qint64 Pixels() const { return qint64{Width} * Height; }
};

/// The header at the first byte; none when it is broken, of a kind that is not known, or of a
/// bitmap beyond the limits.
std::optional<DibHeader> ReadDibHeader(ByteSource& dib);

}  // namespace terramark::bitmap
