// The bounded reader of a 16-bit metafile: headers and records, never a byte outside what was
// given.
#pragma once

#include <QByteArrayView>
#include <QPoint>
#include <QRect>
#include <QRgb>
#include <cstdint>
#include <optional>
#include <vector>

#include "metafile/metafilerecords.h"

namespace terramark::metafile {

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

/// A metafile's bytes, taken apart once.
struct Metafile {
  /// The bounds of a placeable header in logical units: the corners as they stand, so a width or
  /// height may be negative. None without such a header, or when it encloses nothing.
  std::optional<QRect> Bounds;
  /// Up to the end record, the end of the bytes, a record whose length is shorter than its own
  /// head, or MaxMetafileRecords. One that claims more than is left holds what is left.
  std::vector<MetafileRecord> Records;
};

/// None when the bytes do not begin like a metafile: with the placeable key, or a file header of
/// type 1 or 2 with its fixed length of nine words and a known version. The bytes must outlive
/// what is given. std::bad_alloc when the memory does not reach.
std::optional<Metafile> ReadMetafile(QByteArrayView bytes);

}  // namespace terramark::metafile
