#include "bitmap/dibrows.h"

#include <QByteArray>
#include <QtEndian>
#include <algorithm>

namespace terramark::bitmap {
namespace {

/// Stays in a processor's cache until it is converted to pixels.
constexpr qint64 BandBytes = qint64{256} * 1024;
constexpr std::uint32_t Opaque = 0xFF000000;

std::uint32_t LongAt(const char* at) {
  return qFromLittleEndian<std::uint32_t>(at);
}

std::uint32_t ByteAt(const char* at) {
  return static_cast<unsigned char>(*at);
}

/// Pixels of 1, 2 or 4 bits; the leftmost is in a byte's high bits.
void ConvertIndexedRow(int bits, int width, const DibColours& colours, const char* row,
                       std::uint32_t* to) {
  const std::uint32_t mask = (1U << bits) - 1;
  for (int x = 0; x < width; ++row) {
    const std::uint32_t byte = ByteAt(row);
    for (int shift = 8 - bits; shift >= 0 && x < width; shift -= bits, ++x) {
      to[x] = colours[byte >> shift & mask];
    }
  }
}

void Convert24BitRow(int width, const char* row, std::uint32_t* to) {
  // Reads one byte of the next pixel too, so the last pixel is handled separately.
  for (int x = 0; x + 1 < width; ++x, row += 3) to[x] = Opaque | LongAt(row);
  to[width - 1] = Opaque | ByteAt(row + 2) << 16U | ByteAt(row + 1) << 8U | ByteAt(row);
}

}  // namespace

bool DibRows::ReadBand(qint64 from, qint64 to) {
  const qint64 start = at_ + from * header_.RowBytes();
  const qint64 wanted = (to - from) * header_.RowBytes();
  const qint64 present = std::clamp<qint64>(dib_.Size() - start, 0, wanted);
  const std::optional<QByteArrayView> bytes = dib_.At(std::min(start, dib_.Size()), present);
  if (!bytes) return false;
  band_ = *bytes;
  bandFrom_ = from;
  bandTo_ = to;
  if (present == wanted) return true;
  padded_ = bytes->toByteArray();
  padded_.append(wanted - present, '\0');
  band_ = padded_;
  return true;
}

const char* DibRows::Next() {
  const int row = header_.BottomUp ? header_.Height - 1 - next_ : next_;
  ++next_;
  if (row < bandFrom_ || row >= bandTo_) {
    const qint64 rows = std::max<qint64>(1, BandBytes / header_.RowBytes());
    const bool read = header_.BottomUp
                          ? ReadBand(std::max<qint64>(0, row + 1 - rows), row + 1)
                          : ReadBand(row, std::min<qint64>(header_.Height, row + rows));
    if (!read) return nullptr;
  }
  return band_.data() + (row - bandFrom_) * header_.RowBytes();
}

void ConvertRow(const DibHeader& header, const DibColours& colours, const char* row,
                std::uint32_t* to) {
  const int width = header.Width;
  switch (header.BitCount) {
    case 8:
      for (int x = 0; x < width; ++x) to[x] = colours[ByteAt(row + x)];
      return;
    case 16:
      for (int x = 0; x < width; ++x, row += 2) {
        to[x] = header.Masks.Pixel(qFromLittleEndian<std::uint16_t>(row));
      }
      return;
    case 24:
      Convert24BitRow(width, row, to);
      return;
    case 32:
      if (header.Masks.PlainBytes()) {
        for (int x = 0; x < width; ++x, row += 4) to[x] = Opaque | LongAt(row);
      } else {
        for (int x = 0; x < width; ++x, row += 4) to[x] = header.Masks.Pixel(LongAt(row));
      }
      return;
    default:
      ConvertIndexedRow(header.BitCount, width, colours, row, to);
  }
}

}  // namespace terramark::bitmap
