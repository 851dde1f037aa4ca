// The contents of a bitmap's info header, and the places of the colour table and the rows after it.
#pragma once

#include <optional>

#include "bitmap/bytesource.h"
#include "bitmap/dibmasks.h"

namespace terramark::bitmap {

/// The header of a bitmap of a known kind and within the limits. Offsets and lengths are in bytes,
/// and offsets are counted from the header's first byte.
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

  /// The colours that pixels can number, at most 256.
  int UsedColours() const;
  qint64 EntryBytes() const { return Core ? 3 : 4; }
  /// The end of the table when each entry has so many bytes.
  qint64 TableEnd(qint64 entryBytes) const { return TableAt + Colours * entryBytes; }
  qint64 RowBytes() const { return (qint64{Width} * BitCount + 31) / 32 * 4; }
  qint64 Pixels() const { return qint64{Width} * Height; }
};

/// Reads the header at the first byte. None when it is broken, of an unknown kind, or of a bitmap
/// beyond the limits.
std::optional<DibHeader> ReadDibHeader(ByteSource& dib);

}  // namespace terramark::bitmap
