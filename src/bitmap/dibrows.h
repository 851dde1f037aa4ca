// The rows of a bitmap that is not run-length coded, taken in bands and turned into pixels.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "bitmap/dibheader.h"

namespace terramark::bitmap {

/// The pixel of each number; black beyond the colour table.
using DibColours = std::array<std::uint32_t, 256>;

/// Reads the stored rows, the picture's top row first, and holds no more than a band of them.
class DibRows {
 public:
  /// The first stored row begins at byte `at` of `dib`. What is missing at the end reads as 0.
  DibRows(ByteSource& dib, const DibHeader& header, qint64 at)
      : dib_(dib), header_(header), at_(at) {}

  /// The next row's bytes, RowBytes of them, good until the next call; null when a read fails. To
  /// be called Height times at most.
  const char* Next();

 private:
  /// The stored rows from one up to another.
  bool ReadBand(qint64 from, qint64 to);

  ByteSource& dib_;
  const DibHeader& header_;
  qint64 at_;
  int next_ = 0;  // counted from the top
  QByteArrayView band_;
  qint64 bandFrom_ = 0;
  qint64 bandTo_ = 0;
  QByteArray padded_;
};

/// Turns a stored row into the first Width pixels of `to`.
void ConvertRow(const DibHeader& header, const DibColours& colours, const char* row,
                std::uint32_t* to);

}  // namespace terramark::bitmap
