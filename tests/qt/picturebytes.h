// Builds picture files byte by byte for the tests of the picture loader.
#pragma once

#include <QByteArray>
#include <cstdint>
#include <initializer_list>
#include <vector>

namespace terramark::qt {

inline void PutWord(QByteArray& bytes, int value) {
  bytes.append(static_cast<char>(value & 0xFF));
  bytes.append(static_cast<char>(value >> 8 & 0xFF));
}

inline void PutLong(QByteArray& bytes, std::uint32_t value) {
  PutWord(bytes, static_cast<int>(value & 0xFFFF));
  PutWord(bytes, static_cast<int>(value >> 16));
}

/// The bitmap header of 40 bytes, the colours and the rows, as blit records carry them.
struct DibBytes {
  int Width = 0;
  int Height = 0;
  int Bits = 24;
  std::uint32_t Compression = 0;
  std::vector<std::uint32_t> Colours;
  QByteArray Rows;

  QByteArray Packed() const {
    QByteArray bytes;
    PutLong(bytes, 40);
    PutLong(bytes, static_cast<std::uint32_t>(Width));
    PutLong(bytes, static_cast<std::uint32_t>(Height));
    PutWord(bytes, 1);
    PutWord(bytes, Bits);
    PutLong(bytes, Compression);
    for (int i = 0; i < 3; ++i) PutLong(bytes, 0);
    PutLong(bytes, static_cast<std::uint32_t>(Colours.size()));
    PutLong(bytes, 0);
    for (const std::uint32_t colour : Colours) PutLong(bytes, colour);
    return bytes + Rows;
  }

  QByteArray File() const {
    QByteArray bytes("BM");
    const QByteArray packed = Packed();
    PutLong(bytes, static_cast<std::uint32_t>(packed.size() + 14));
    PutLong(bytes, 0);
    PutLong(bytes, static_cast<std::uint32_t>(packed.size() - Rows.size() + 14));
    return bytes + packed;
  }
};

/// Collects the records of a metafile.
class MetafileBytes {
 public:
  MetafileBytes& Record(int function, std::initializer_list<int> words,
                        const QByteArray& tail = {}) {
    QByteArray body;
    for (const int word : words) PutWord(body, word);
    body += tail;
    if (body.size() % 2 != 0) body.append('\0');
    PutLong(records_, static_cast<std::uint32_t>(3 + body.size() / 2));
    PutWord(records_, function);
    records_ += body;
    return *this;
  }
  /// Bytes as they are, for records that lie.
  MetafileBytes& Raw(const QByteArray& bytes) {
    records_ += bytes;
    return *this;
  }

  MetafileBytes& Window(int width, int height) {
    return Record(0x020B, {0, 0}).Record(0x020C, {height, width});
  }
  /// Creates and selects; the objects' numbers count up from 0.
  MetafileBytes& Pen(int style, int width, std::uint32_t colour) {
    Record(0x02FA,
           {style, width, 0, static_cast<int>(colour & 0xFFFF), static_cast<int>(colour >> 16)});
    return Record(0x012D, {objects_++});
  }
  MetafileBytes& Brush(int style, std::uint32_t colour, int hatch = 0) {
    Record(0x02FC,
           {style, static_cast<int>(colour & 0xFFFF), static_cast<int>(colour >> 16), hatch});
    return Record(0x012D, {objects_++});
  }
  MetafileBytes& Rectangle(int left, int top, int right, int bottom) {
    return Record(0x041B, {bottom, right, top, left});
  }
  MetafileBytes& Line(int x0, int y0, int x1, int y1) {
    return Record(0x0214, {y0, x0}).Record(0x0213, {y1, x1});
  }

  QByteArray Plain() const {
    QByteArray bytes;
    for (const int word : {1, 9, 0x300}) PutWord(bytes, word);
    PutLong(bytes, static_cast<std::uint32_t>(9 + records_.size() / 2));
    PutWord(bytes, objects_);
    PutLong(bytes, 0);
    PutWord(bytes, 0);
    bytes += records_;
    PutLong(bytes, 3);
    PutWord(bytes, 0);
    return bytes;
  }

  QByteArray Placeable(int left, int top, int right, int bottom) const {
    QByteArray bytes;
    PutLong(bytes, 0x9AC6CDD7);
    for (const int word : {0, left, top, right, bottom, 1440, 0, 0, 0}) PutWord(bytes, word);
    return bytes + Plain();
  }

 private:
  QByteArray records_;
  int objects_ = 0;
};

}  // namespace terramark::qt
