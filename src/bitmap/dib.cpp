#include "bitmap/dib.h"

#include <QtEndian>
#include <algorithm>
#include <vector>

#include "bitmap/dibrows.h"
#include "bitmap/limits.h"
#include "bitmap/runlength.h"

namespace terramark::bitmap {
namespace {

constexpr std::uint32_t Black = 0xFF000000;

DibColours AllBlack() {
  DibColours colours;
  colours.fill(Black);
  return colours;
}

/// The colours before the rows, which begin at `bits`; the others are black.
std::optional<DibColours> ReadColours(ByteSource& dib, const DibHeader& header, qint64 bits) {
  const qint64 wanted = header.UsedColours() * header.EntryBytes();
  const auto table = dib.At(header.TableAt, std::min(wanted, bits - header.TableAt));
  if (!table) return std::nullopt;
  QByteArray bytes = table->toByteArray();
  bytes.append(wanted - bytes.size(), '\0');
  DibColours colours = AllBlack();
  for (int i = 0; i < header.UsedColours(); ++i) {
    const auto* entry = reinterpret_cast<const uchar*>(bytes.constData() + i * header.EntryBytes());
    colours[static_cast<std::size_t>(i)] = Black | entry[2] << 16U | entry[1] << 8U | entry[0];
  }
  return colours;
}

DibColours ColoursOf(QByteArrayView numbers, const DibHeader& header,
                     std::span<const std::uint32_t> palette) {
  DibColours colours = AllBlack();
  for (int i = 0; i < header.UsedColours(); ++i) {
    const std::size_t entry = qFromLittleEndian<std::uint16_t>(numbers.data() + qsizetype{2} * i);
    if (entry < palette.size()) {
      colours[static_cast<std::size_t>(i)] = Black | palette[entry];
    }
  }
  return colours;
}

/// Where the rows begin. An offset that points into the header or the colours counts for nothing.
/// But some files have fewer colours than they claim: uncoded rows that would not fit after the
/// claimed ones begin at the offset.
qint64 FindRows(const ByteSource& dib, const DibHeader& header, qint64 offset) {
  const qint64 afterTable = header.TableEnd(header.EntryBytes());
  if (offset < header.TableAt) return afterTable;
  if (offset >= afterTable) return offset;
  const bool fit = header.RunLength || afterTable + header.RowBytes() * header.Height <= dib.Size();
  return fit ? afterTable : offset;
}

/// The coded bytes or rows begin at `bits`, which is not beyond the end.
forms::Picture DecodePixels(ByteSource& dib, const DibHeader& header, const DibColours& colours,
                            qint64 bits) {
  const qint64 present = dib.Size() - bits;
  const bool enough = header.RunLength ? header.Pixels() / MaxPixelsPerCodedByte <= present
                                       : header.RowBytes() * header.Height / 2 <= present;
  if (!enough) return nullptr;
  auto raster = std::make_shared<forms::Raster>();
  raster->Width = header.Width;
  raster->Height = header.Height;
  if (header.RunLength) {
    raster->Pixels.assign(static_cast<std::size_t>(header.Pixels()), colours[0]);
    return DecodeRunLengths(dib, header, colours, bits, *raster) ? raster : nullptr;
  }
  // Row by row, which avoids a pass over the memory to clear it.
  raster->Pixels.reserve(static_cast<std::size_t>(header.Pixels()));
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(header.Width));
  DibRows rows(dib, header, bits);
  for (int y = 0; y < header.Height; ++y) {
    const char* row = rows.Next();
    if (row == nullptr) return nullptr;
    ConvertRow(header, colours, row, pixels.data());
    raster->Pixels.insert(raster->Pixels.end(), pixels.begin(), pixels.end());
  }
  return raster;
}

}  // namespace

forms::Picture DecodeDib(ByteSource& dib, const DibHeader& header, std::optional<qint64> bitsAt) {
  const qint64 bits = FindRows(dib, header, bitsAt.value_or(0));
  if (bits > dib.Size()) return nullptr;
  const std::optional<DibColours> colours = ReadColours(dib, header, bits);
  return colours ? DecodePixels(dib, header, *colours, bits) : nullptr;
}

forms::Picture DecodeDibByPalette(ByteSource& dib, const DibHeader& header,
                                  std::span<const std::uint32_t> palette) {
  if (header.Core || header.BitCount > 8) return DecodeDib(dib, header, std::nullopt);
  const qint64 bits = header.TableEnd(sizeof(std::uint16_t));
  if (bits > dib.Size()) return nullptr;
  const auto numbers = dib.At(header.TableAt, bits - header.TableAt);
  if (!numbers) return nullptr;
  const DibColours colours = ColoursOf(*numbers, header, palette);
  return DecodePixels(dib, header, colours, bits);
}

}  // namespace terramark::bitmap
