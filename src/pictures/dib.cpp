#include "pictures/dib.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>
#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "pictures/limits.h"
#include "pictures/newimage.h"

namespace terramark::pictures {
namespace {

constexpr qsizetype FileHeaderBytes = 14;
constexpr std::uint32_t CoreHeaderBytes = 12;
constexpr std::uint32_t InfoHeaderBytes = 40;
// The longer headers begin with the usual one.
constexpr std::uint32_t LongHeaderBytes[] = {64, 108, 124};
constexpr qsizetype GreenMaskAt = 44;
constexpr std::uint32_t Uncompressed = 0;
constexpr std::uint32_t RunLength8 = 1;
constexpr std::uint32_t RunLength4 = 2;
constexpr std::uint32_t BitFields = 3;

struct DibHeader {
  std::uint32_t Bytes = 0;
  qint64 Width = 0;
  qint64 Height = 0;  // negative when the first row is the top one
  int BitCount = 0;
  std::uint32_t Compression = 0;
  std::uint32_t ColoursUsed = 0;

  bool Core() const { return Bytes == CoreHeaderBytes; }
  bool RunLength() const { return Compression == RunLength8 || Compression == RunLength4; }
  qsizetype MaskBytes() const {
    return Compression == BitFields && Bytes == InfoHeaderBytes ? 12 : 0;
  }
  qsizetype Colours() const {
    if (BitCount > 8) return Core() ? 0 : std::min<std::uint32_t>(ColoursUsed, 256);
    const qsizetype all = qsizetype{1} << BitCount;
    return Core() || ColoursUsed == 0 ? all : std::min<qsizetype>(ColoursUsed, all);
  }
  qint64 RowBytes() const { return (Width * BitCount + 31) / 32 * 4; }
};

std::uint16_t Word(QByteArrayView bytes, qsizetype at) {
  return qFromLittleEndian<std::uint16_t>(bytes.data() + at);
}

std::uint32_t Long(QByteArrayView bytes, qsizetype at) {
  return qFromLittleEndian<std::uint32_t>(bytes.data() + at);
}

std::optional<DibHeader> ReadHeader(QByteArrayView dib) {
  if (dib.size() < qsizetype{CoreHeaderBytes}) return std::nullopt;
  DibHeader header;
  header.Bytes = Long(dib, 0);
  if (dib.size() < qsizetype{header.Bytes}) return std::nullopt;
  if (header.Core()) {
    header.Width = Word(dib, 4);
    header.Height = Word(dib, 6);
    header.BitCount = Word(dib, 10);
    return header;
  }
  const bool isLong = std::find(std::begin(LongHeaderBytes), std::end(LongHeaderBytes),
                                header.Bytes) != std::end(LongHeaderBytes);
  if (header.Bytes != InfoHeaderBytes && !isLong) return std::nullopt;
  header.Width = static_cast<std::int32_t>(Long(dib, 4));
  header.Height = static_cast<std::int32_t>(Long(dib, 8));
  header.BitCount = Word(dib, 14);
  header.Compression = Long(dib, 16);
  header.ColoursUsed = Long(dib, 32);
  return header;
}

bool IsSound(const DibHeader& header) {
  const qint64 height = std::abs(header.Height);
  if (header.Width < 1 || height < 1) return false;
  if (header.Width > MaxBitmapSide || height > MaxBitmapSide) return false;
  if (header.Width * height > MaxBitmapPixels) return false;
  switch (header.Compression) {
    case Uncompressed:
      return header.BitCount == 1 || header.BitCount == 4 || header.BitCount == 8 ||
             header.BitCount == 16 || header.BitCount == 24 || header.BitCount == 32;
    case RunLength8:
      return header.BitCount == 8 && header.Height > 0;
    case RunLength4:
      return header.BitCount == 4 && header.Height > 0;
    case BitFields:
      return header.BitCount == 16 || header.BitCount == 32;
    default:
      return false;
  }
}

QByteArray LongBytes(std::uint32_t value) {
  QByteArray bytes(sizeof value, '\0');
  qToLittleEndian(value, bytes.data());
  return bytes;
}

// The reader leaves the low bits of five- and six-bit channels clear; full must come out as 0xFF.
QRgb Widened(QRgb pixel, int greenBits) {
  const auto widened = [](int value, int bits) { return value | value >> bits; };
  return qRgb(widened(qRed(pixel), 5), widened(qGreen(pixel), greenBits), widened(qBlue(pixel), 5));
}

// `head` is the header with masks and colour table as a bitmap file holds them.
QImage Decode(const DibHeader& header, const QByteArray& head, QByteArrayView bits) {
  const qint64 pixels = header.Width * std::abs(header.Height);
  const qint64 wanted = header.RowBytes() * std::abs(header.Height);
  const qint64 present = std::min<qint64>(bits.size(), header.RunLength() ? bits.size() : wanted);
  if (header.RunLength() ? pixels / MaxPixelsPerCodedByte > present : present < wanted / 2)
    return {};

  QByteArray file("BM");
  file.append(LongBytes(0)).append(LongBytes(0));
  file.append(LongBytes(static_cast<std::uint32_t>(FileHeaderBytes + head.size())));
  file.append(head);
  file.append(bits.first(present));
  if (!header.RunLength()) file.append(wanted - present, '\0');

  QBuffer buffer(&file);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer, "bmp");
  reader.setAutoDetectImageFormat(false);
  QImage image = reader.read();
  if (image.size() !=
      QSize(static_cast<int>(header.Width), static_cast<int>(std::abs(header.Height)))) {
    return {};
  }
  // An alpha channel has no meaning here; the colours stand as they are stored.
  const auto format = image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32;
  QImage plain = OwnPixels(std::move(image).convertToFormat(format));
  if (plain.format() == QImage::Format_ARGB32) plain.reinterpretAsFormat(QImage::Format_RGB32);
  const bool sixGreenBits = header.Compression == BitFields && Long(head, GreenMaskAt) == 0x07E0;
  for (int y = 0; y < plain.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(plain.scanLine(y));
    for (int x = 0; x < plain.width(); ++x) {
      row[x] = header.BitCount == 16 ? Widened(row[x], sixGreenBits ? 6 : 5) : row[x] | 0xFF000000;
    }
  }
  return plain;
}

}  // namespace

forms::Picture PictureOf(const QImage& image) {
  if (image.isNull()) return nullptr;
  auto raster = std::make_shared<forms::Raster>();
  raster->Width = image.width();
  raster->Height = image.height();
  raster->Pixels.reserve(raster->At(0, raster->Height));
  for (int y = 0; y < image.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    raster->Pixels.insert(raster->Pixels.end(), row, row + image.width());
  }
  return raster;
}

forms::Picture DecodeDib(QByteArrayView dib, std::optional<qsizetype> bitsAt) {
  const std::optional<DibHeader> header = ReadHeader(dib);
  if (!header || !IsSound(*header)) return nullptr;
  const qsizetype tableAt = qsizetype{header->Bytes} + header->MaskBytes();
  const qsizetype tableEnd = tableAt + header->Colours() * (header->Core() ? 3 : 4);
  // Some files keep fewer colours than they claim: their rows then start inside the table.
  const qsizetype bits = bitsAt.value_or(tableEnd);
  if (bits < tableAt || bits > dib.size()) return nullptr;
  QByteArray head = dib.first(std::min(bits, tableEnd)).toByteArray();
  head.append(tableEnd - head.size(), '\0');
  return PictureOf(Decode(*header, head, dib.sliced(bits)));
}

forms::Picture DecodeDib(QByteArrayView dib, const Palette& palette) {
  const std::optional<DibHeader> header = ReadHeader(dib);
  if (!header || !IsSound(*header) || header->Core() || header->BitCount > 8) {
    return DecodeDib(dib, std::nullopt);
  }
  const qsizetype tableAt = qsizetype{header->Bytes};
  const qsizetype bits = tableAt + header->Colours() * 2;
  if (bits > dib.size()) return nullptr;
  QByteArray head = dib.first(tableAt).toByteArray();
  for (qsizetype i = 0; i < header->Colours(); ++i) {
    const std::size_t entry = Word(dib, tableAt + 2 * i);
    head += LongBytes(entry < palette.Entries.size() ? palette.Entries[entry] & 0xFFFFFF : 0);
  }
  return PictureOf(Decode(*header, head, dib.sliced(bits)));
}

std::optional<DibShape> ShapeOfDib(QByteArrayView dib) {
  const std::optional<DibHeader> header = ReadHeader(dib);
  if (!header || !IsSound(*header)) return std::nullopt;
  return DibShape{static_cast<int>(header->Width), static_cast<int>(std::abs(header->Height)),
                  header->Height > 0};
}

}  // namespace terramark::pictures
