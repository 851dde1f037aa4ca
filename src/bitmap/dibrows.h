// The rows of a bitmap that is not run-length coded, read in bands and converted to pixels.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "bitmap/dibheader.h"

namespace terramark::bitmap {

/// The pixel for each number; black beyond the colour table.
using DibColours = std::array<std::uint32_t, 256>;

/// Reads the stored rows from the picture's top to its bottom, with one band of them in memory.
class DibRows {
 public:
  /// The first stored row begins at byte `at` of `dib`. Missing bytes at the end read as 0.
  DibRows(ByteSource& dib, const DibHeader& header, qint64 at)
      : dib_(dib), header_(header), at_(at) {}

  /// The bytes of the next row, RowBytes of them, valid until the next call; null when a read
  /// fails. May be called Height times.
  const char* Next();

 private:
  /// Reads the stored rows `from` up to `to`.
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

/// Converts a stored row to the first Width pixels of `to`.
void ConvertRow(const DibHeader& header, const DibColours& colours, const char* row,
                std::uint32_t* to);

}  // namespace terramark::bitmap
