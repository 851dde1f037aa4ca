#include "metafile/metafilereader.h"

#include <QtEndian>
#include <algorithm>

#include "metafile/limits.h"

namespace terramark::metafile {
namespace {

constexpr std::uint32_t PlaceableKey = 0x9AC6CDD7;
constexpr qsizetype PlaceableBytes = 22;
constexpr qsizetype HeaderBytes = 18;
constexpr std::uint16_t HeaderWords = 9;
constexpr std::uint16_t InMemory = 1;
constexpr std::uint16_t OnDisk = 2;
constexpr std::uint16_t Version1 = 0x100;
constexpr std::uint16_t Version3 = 0x300;
constexpr qsizetype RecordHeadBytes = 6;

std::uint16_t WordAt(QByteArrayView bytes, qsizetype offset) {
  if (offset < 0 || offset + 2 > bytes.size()) return 0;
  return qFromLittleEndian<std::uint16_t>(bytes.data() + offset);
}

std::uint32_t LongAt(QByteArrayView bytes, qsizetype offset) {
  return WordAt(bytes, offset) | static_cast<std::uint32_t>(WordAt(bytes, offset + 2)) << 16;
}

bool IsFileHeader(QByteArrayView bytes) {
  const std::uint16_t type = WordAt(bytes, 0);
  const std::uint16_t version = WordAt(bytes, 4);
  return bytes.size() >= HeaderBytes && (type == InMemory || type == OnDisk) &&
         WordAt(bytes, 2) == HeaderWords && (version == Version1 || version == Version3);
}

bool BeginsLikeAMetafile(QByteArrayView bytes) {
  if (LongAt(bytes, 0) == PlaceableKey) return bytes.size() >= PlaceableBytes + HeaderBytes;
  return IsFileHeader(bytes);
}

std::optional<QRect> BoundsIn(QByteArrayView placeableHeader) {
  const auto corner = [placeableHeader](qsizetype offset) {
    return static_cast<std::int16_t>(WordAt(placeableHeader, offset));
  };
  const QPoint topLeft(corner(6), corner(8));
  const QSize size(corner(10) - topLeft.x(), corner(12) - topLeft.y());
  if (size.width() == 0 || size.height() == 0) return std::nullopt;
  return QRect(topLeft, size);
}

/// Removes the first record from the bytes; none at their end.
std::optional<MetafileRecord> TakeRecord(QByteArrayView& bytes) {
  if (bytes.size() < RecordHeadBytes) return std::nullopt;
  const qsizetype claimed = static_cast<qsizetype>(LongAt(bytes, 0)) * 2;
  const RecordKind kind{WordAt(bytes, 4)};
  if (claimed < RecordHeadBytes || kind == RecordKind::End) return std::nullopt;
  const qsizetype length = std::min(claimed, bytes.size());
  const MetafileRecord record{kind, bytes.first(length).sliced(RecordHeadBytes)};
  bytes = bytes.sliced(length);
  return record;
}

}  // namespace

std::uint16_t MetafileRecord::Word(qsizetype index) const {
  return WordAt(Parameters, index * 2);
}

std::uint32_t MetafileRecord::Long(qsizetype index) const {
  return LongAt(Parameters, index * 2);
}

QByteArrayView MetafileRecord::From(qsizetype index) const {
  return index * 2 < Parameters.size() ? Parameters.sliced(index * 2) : QByteArrayView();
}

std::optional<Metafile> ReadMetafile(QByteArrayView bytes) {
  if (!BeginsLikeAMetafile(bytes)) return std::nullopt;
  Metafile metafile;
  if (LongAt(bytes, 0) == PlaceableKey) {
    metafile.Bounds = BoundsIn(bytes);
    bytes = bytes.sliced(PlaceableBytes);
  }
  bytes = bytes.sliced(HeaderBytes);
  while (metafile.Records.size() < MaxMetafileRecords) {
    const std::optional<MetafileRecord> record = TakeRecord(bytes);
    if (!record) break;
    metafile.Records.push_back(*record);
  }
  return metafile;
}

}  // namespace terramark::metafile
