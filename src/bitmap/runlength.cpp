#include "bitmap/runlength.h"

#include <algorithm>

#include "bitmap/limits.h"

namespace terramark::bitmap {
namespace {

constexpr qint64 PieceBytes = qint64{64} * 1024;

/// Reads the coded bytes one by one.
class CodeReader {
 public:
  CodeReader(ByteSource& dib, qint64 at)
      : dib_(dib), next_(at), end_(at + std::min<qint64>(dib.Size() - at, MaxCodedBytes)) {}

  /// 0 once they have ended.
  int NextByte() {
    if (taken_ == piece_.size() && !ReadPiece()) return 0;
    return static_cast<unsigned char>(piece_[taken_++]);
  }
  /// Whether the codes have ended, or a read has failed.
  bool Ended() const { return ended_; }
  bool Failed() const { return failed_; }

 private:
  bool ReadPiece() {
    if (ended_) return false;
    const qint64 count = std::min(PieceBytes, end_ - next_);
    const std::optional<QByteArrayView> piece = dib_.At(next_, count);
    failed_ = !piece;
    ended_ = failed_ || count == 0;
    if (ended_) return false;
    piece_ = *piece;
    taken_ = 0;
    next_ += count;
    return true;
  }

  ByteSource& dib_;
  qint64 next_;
  qint64 end_;
  QByteArrayView piece_;
  qsizetype taken_ = 0;
  bool ended_ = false;
  bool failed_ = false;
};

class RunLengthDecoder {
 public:
  RunLengthDecoder(CodeReader& codes, const DibHeader& header, const DibColours& colours,
                   forms::Raster& raster)
      : codes_(codes), bits_(header.BitCount), colours_(colours), raster_(raster) {}

  void DecodeRows() {
    while (y_ < raster_.Height) {
      const int count = codes_.NextByte();
      const int code = codes_.NextByte();
      if (codes_.Ended()) return;
      if (count > 0) {
        PaintRun(count, code);
      } else if (!PlayEscape(code)) {
        return;
      }
    }
  }

 private:
  // The colour index of a pixel in a run. With 4 bits a byte has two of them, the left one in the
  // high bits.
  int ColourIndexIn(int byte, int i) const {
    return bits_ == 8 ? byte : byte >> (i % 2 == 0 ? 4 : 0) & 0xF;
  }

  std::uint32_t* Row() {
    return raster_.Pixels.data() + raster_.IndexOf(0, raster_.Height - 1 - y_);
  }

  void PaintRun(int count, int byte) {
    const int shown = std::min(count, raster_.Width - x_);
    std::uint32_t* to = Row() + x_;
    for (int i = 0; i < shown; ++i) to[i] = Colour(ColourIndexIn(byte, i));
    x_ += shown;
  }

  void PaintEach(int count) {
    int byte = 0;
    std::uint32_t* row = Row();
    for (int i = 0; i < count; ++i) {
      if (bits_ == 8 || i % 2 == 0) byte = codes_.NextByte();
      if (codes_.Ended()) return;
      if (x_ < raster_.Width) row[x_++] = Colour(ColourIndexIn(byte, i));
    }
    const int bytes = bits_ == 8 ? count : (count + 1) / 2;
    if (bytes % 2 != 0) codes_.NextByte();
  }

  // False at the end of the picture.
  bool PlayEscape(int code) {
    constexpr int EndOfRow = 0;
    constexpr int EndOfPicture = 1;
    constexpr int Move = 2;
    switch (code) {
      case EndOfRow:
        x_ = 0;
        ++y_;
        return true;
      case EndOfPicture:
        return false;
      case Move:
        x_ = std::min(x_ + codes_.NextByte(), raster_.Width);
        y_ += codes_.NextByte();
        return true;
      default:
        PaintEach(code);
        return true;
    }
  }

  std::uint32_t Colour(int number) const { return colours_[static_cast<std::size_t>(number)]; }

  CodeReader& codes_;
  int bits_;
  const DibColours& colours_;
  forms::Raster& raster_;
  int x_ = 0;
  int y_ = 0;  // counted from the lowest row
};

}  // namespace

bool DecodeRunLengths(ByteSource& dib, const DibHeader& header, const DibColours& colours,
                      qint64 at, forms::Raster& raster) {
  CodeReader codes(dib, at);
  RunLengthDecoder(codes, header, colours, raster).DecodeRows();
  return !codes.Failed();
}

}  // namespace terramark::bitmap
