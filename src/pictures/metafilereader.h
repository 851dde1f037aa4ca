// The bounded reader of a 16-bit metafile: the headers, and one record after the other, never a
// byte outside what was given.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QPoint>
#include <QRect>
#include <QRgb>
#include <cstdint>
#include <optional>

#include "pictures/metafilerecords.h"

namespace terramark::pictures {

/// One record: what it does and its parameters. Whatever lies past its end reads as 0.
struct MetafileRecord {
  RecordKind Kind = RecordKind::End;
  QByteArrayView Parameters;

  /// How many parameter words there are.
  qsizetype Words() const { return Parameters.size() / 2; }
  /// The parameter word at `index`, counted from 0, as a signed number.
  int Int(qsizetype index) const { return static_cast<std::int16_t>(Word(index)); }
  /// The same without a sign.
  std::uint16_t Word(qsizetype index) const;
  /// The two words from `index`, the low one first.
  std::uint32_t Long(qsizetype index) const;
  /// The bytes from the word `index` to the end; empty when it lies past the end.
  QByteArrayView From(qsizetype index) const;
  /// The point in the two words from `index`, stored y before x.
  QPoint PointYX(qsizetype index) const { return {Int(index + 1), Int(index)}; }
};

/// Steps through the records of a metafile, placeable or not.
class MetafileReader {
 public:
  /// Whether the bytes begin like a metafile: the placeable key, or a file header of type 1 or 2
  /// with its fixed length of nine words and a known version.
  static bool Recognises(QByteArrayView bytes);

  /// `bytes` must outlive the reader and every record taken from it.
  explicit MetafileReader(QByteArrayView bytes);

  /// The bounds of a placeable header in logical units: the corners as they stand, so a width or
  /// height may be negative. None without such a header, or when it encloses nothing.
  const std::optional<QRect>& Bounds() const { return bounds_; }

  /// The next record; none at the end record, at the end of the bytes, or when a record's length
  /// is shorter than its own head. A record that claims more than is left holds what is left.
  std::optional<MetafileRecord> Next();

 private:
  QByteArrayView bytes_;
  qsizetype position_ = 0;
  std::optional<QRect> bounds_;
};

}  // namespace terramark::pictures
