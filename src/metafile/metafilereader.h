// Splits a 16-bit metafile into header and records. It never reads a byte outside the given ones.
#pragma once

#include <QByteArrayView>
#include <QPoint>
#include <QRect>
#include <cstdint>
#include <optional>
#include <vector>

#include "metafile/metafilerecords.h"

namespace terramark::metafile {

/// One record: its kind and its parameters. Words beyond its end read as 0.
struct MetafileRecord {
  RecordKind Kind = RecordKind::End;
  QByteArrayView Parameters;

  /// The number of parameter words.
  qsizetype Words() const { return Parameters.size() / 2; }
  /// The parameter word at `index`, counted from 0, as a signed number.
  int Int(qsizetype index) const { return static_cast<std::int16_t>(Word(index)); }
  /// The same as an unsigned number.
  std::uint16_t Word(qsizetype index) const;
  /// The two words from `index`, the low one first.
  std::uint32_t Long(qsizetype index) const;
  /// The bytes from the word `index` to the end; empty when that is beyond the end.
  QByteArrayView From(qsizetype index) const;
  /// The point in the two words from `index`, of which the first is y.
  QPoint PointYX(qsizetype index) const { return {Int(index + 1), Int(index)}; }
};

/// A metafile's header and records.
struct Metafile {
  /// The bounds of a placeable header in logical units. The corners may be exchanged, so a width or
  /// height may be negative. None without such a header, or when it encloses nothing.
  std::optional<QRect> Bounds;
  /// The records up to the end record, the end of the bytes, a record that is shorter than its own
  /// head, or MaxMetafileRecords of them. A record that claims more bytes than are left has those
  /// that are left.
  std::vector<MetafileRecord> Records;
};

/// None when the bytes do not begin like a metafile: with the placeable key, or a file header of
/// type 1 or 2 with its fixed length of nine words and a known version. The result refers to the
/// bytes, which must outlive it. std::bad_alloc when memory runs out.
std::optional<Metafile> ReadMetafile(QByteArrayView bytes);

}  // namespace terramark::metafile
