// Builds picture files byte by byte for the tests of the picture loader.
#pragma once

#include <QByteArray>
#include <cstdint>
#include <initializer_list>
#include <vector>

#include "metafile/metafilerecords.h"

namespace terramark {

constexpr std::uint32_t White = 0xFFFFFFFF;
constexpr std::uint32_t Black = 0xFF000000;
constexpr std::uint32_t Red = 0xFFFF0000;
constexpr std::uint32_t Green = 0xFF00FF00;
constexpr std::uint32_t Blue = 0xFF0000FF;

inline QByteArray Words(std::initializer_list<int> values) {
  QByteArray bytes;
  for (const int value : values) {
    bytes.append(static_cast<char>(value & 0xFF)).append(static_cast<char>(value >> 8 & 0xFF));
  }
  return bytes;
}

inline QByteArray Long(qint64 value) {
  return Words({static_cast<int>(value & 0xFFFF), static_cast<int>(value >> 16 & 0xFFFF)});
}

/// A bitmap's header, of 40 bytes if nothing else is said, the colours and the rows, as blit
/// records carry them.
struct DibBytes {
  int Width = 0;
  int Height = 0;
  int Bits = 24;
  std::uint32_t Compression = 0;
  std::vector<std::uint32_t> Colours;
  QByteArray Rows;
  int HeaderBytes = 40;
  std::vector<std::uint32_t> Masks{};

  QByteArray Packed() const {
    QByteArray bytes = Long(HeaderBytes);
    if (HeaderBytes == 12) {
      bytes += Words({Width, Height, 1, Bits});
    } else {
      bytes += Long(Width) + Long(Height) + Words({1, Bits}) + Long(Compression) +
               QByteArray(12, 0) + Long(std::ssize(Colours)) + Long(0);
      for (const std::uint32_t mask : Masks) bytes += Long(mask);
      if (HeaderBytes != 40) bytes = bytes.leftJustified(HeaderBytes, '\0', true);
    }
    for (const std::uint32_t colour : Colours)
      bytes += Long(colour).first(HeaderBytes == 12 ? 3 : 4);
    return bytes + Rows;
  }

  QByteArray File() const {
    const QByteArray packed = Packed();
    return "BM" + Long(packed.size() + 14) + Long(0) + Long(packed.size() - Rows.size() + 14) +
           packed;
  }
};

/// Collects the records of a metafile.
class MetafileBytes {
 public:
  MetafileBytes& Record(metafile::RecordKind kind, std::initializer_list<int> words,
                        const QByteArray& tail = {}) {
    QByteArray body = Words(words) + tail;
    if (body.size() % 2 != 0) body.append('\0');
    return Raw(Long(3 + body.size() / 2) + Words({static_cast<int>(kind)}) + body);
  }
  /// Bytes as they are, for records that lie.
  MetafileBytes& Raw(const QByteArray& bytes) {
    records_ += bytes;
    return *this;
  }

  /// Creates and selects; the objects' numbers count up from 0.
  MetafileBytes& Object(metafile::RecordKind kind, std::initializer_list<int> words,
                        const QByteArray& tail = {}) {
    return Record(kind, words, tail).Record(metafile::RecordKind::SelectObject, {objects_++});
  }
  MetafileBytes& Pen(int style, int width, int colour) {
    return Object(metafile::RecordKind::CreatePenIndirect,
                  {style, width, 0, colour & 0xFFFF, colour >> 16});
  }
  MetafileBytes& Brush(int style, int colour, int hatch = 0) {
    return Object(metafile::RecordKind::CreateBrushIndirect,
                  {style, colour & 0xFFFF, colour >> 16, hatch});
  }
  MetafileBytes& Rectangle(int left, int top, int right, int bottom) {
    return Record(metafile::RecordKind::Rectangle, {bottom, right, top, left});
  }
  MetafileBytes& Whole() { return Rectangle(0, 0, 101, 101); }
  MetafileBytes& Line(int x0, int y0, int x1, int y1) {
    return Record(metafile::RecordKind::MoveTo, {y0, x0})
        .Record(metafile::RecordKind::LineTo, {y1, x1});
  }

  /// To be put into another file.
  const QByteArray& Records() const { return records_; }
  QByteArray Plain() const {
    return Words({1, 9, 0x300}) + Long(9 + records_.size() / 2) + Words({objects_, 0, 0, 0}) +
           records_ + Words({3, 0, 0});
  }

  /// The usual file: 100 units each way.
  operator QByteArray() const { return Placeable(0, 0, 100, 100); }
  QByteArray Placeable(int left, int top, int right, int bottom) const {
    return Long(0x9AC6CDD7) + Words({0, left, top, right, bottom, 1440, 0, 0, 0}) + Plain();
  }

 private:
  QByteArray records_;
  int objects_ = 0;
};

}  // namespace terramark
