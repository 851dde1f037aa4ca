#include "pictures/graphicsobjects.h"

#include <algorithm>
#include <utility>

#include "pictures/limits.h"

namespace terramark::pictures {
namespace {

Pen ReadPen(const MetafileRecord& record) {
  constexpr int StyleBits = 0x0F;
  const auto style = PenStyle{record.Word(0) & StyleBits};
  return {.Style = style <= PenStyle::InsideFrame ? style : PenStyle::Solid,
          .Width = record.Int(1),
          .Colour = record.Long(3)};
}

Brush ReadBrush(const MetafileRecord& record) {
  auto style = BrushStyle{record.Word(0)};
  // The numbers behind the hatches stand for plain colours.
  if (style == BrushStyle::Hatched && record.Word(3) > LastHatch) style = BrushStyle::Solid;
  return {.Style = style <= BrushStyle::Hatched ? style : BrushStyle::None,
          .Colour = record.Long(1),
          .Hatch = record.Word(3),
          .Tile = {}};
}

Font ReadFont(const MetafileRecord& record) {
  constexpr qsizetype MaxFaceBytes = 32;
  const QByteArrayView face = record.From(9);
  const auto* end = std::find(face.begin(), face.end(), '\0');
  return {.Height = record.Int(0),
          .Width = record.Int(1),
          .Escapement = record.Int(2),
          .Weight = record.Int(4),
          .Italic = (record.Word(5) & 0xFF) != 0,
          .Underline = record.Word(5) >> 8 != 0,
          .StrikeOut = (record.Word(6) & 0xFF) != 0,
          .Charset = record.Word(6) >> 8,
          .PitchAndFamily = record.Word(8) >> 8,
          .Face = QByteArray(face.data(), std::min<qsizetype>(end - face.begin(), MaxFaceBytes))};
}

Palette ReadPalette(const MetafileRecord& record) {
  Palette palette;
  const qsizetype count =
      std::min<qsizetype>({record.Word(1), (record.Words() - 2) / 2, MaxPaletteEntries});
  for (qsizetype i = 0; i < count; ++i) {
    const std::uint32_t entry = record.Long(2 + 2 * i);
    palette.Entries.push_back(qRgb(entry & 0xFF, entry >> 8 & 0xFF, entry >> 16 & 0xFF));
  }
  return palette;
}

// Scans: how many edges, top, bottom, the edges in pairs, and how many once more.
GraphicsObject ReadRegion(const MetafileRecord& record) {
  Region region;
  qsizetype at = 11;
  for (int scan = 0; scan < record.Word(5); ++scan) {
    const int edges = record.Word(at);
    const bool whole = at + edges + 4 <= record.Words() && record.Word(at + edges + 3) == edges;
    if (!whole || edges % 2 != 0) return Unusable();
    for (int i = 0; i < edges; i += 2) {
      region.Rects.emplace_back(QPoint(record.Int(at + 3 + i), record.Int(at + 1)),
                                QPoint(record.Int(at + 4 + i) - 1, record.Int(at + 2) - 1));
    }
    at += edges + 4;
  }
  return region;
}

}  // namespace

GraphicsObject ReadObject(const MetafileRecord& record) {
  switch (record.Kind) {
    case RecordKind::CreatePenIndirect:
      return ReadPen(record);
    case RecordKind::CreateBrushIndirect:
      return ReadBrush(record);
    case RecordKind::CreateFontIndirect:
      return ReadFont(record);
    case RecordKind::CreatePalette:
      return ReadPalette(record);
    case RecordKind::CreateRegion:
      return ReadRegion(record);
    default:
      return std::monostate();
  }
}

std::size_t ObjectTable::Add(GraphicsObject object) {
  const std::size_t from = lowestFree_;
  while (lowestFree_ < slots_.size() && slots_[lowestFree_].index() != 0) ++lowestFree_;
  const std::size_t passed = lowestFree_ - from;
  if (lowestFree_ == MaxObjects) return passed;
  if (lowestFree_ == slots_.size()) slots_.emplace_back();
  slots_[lowestFree_++] = std::move(object);
  return passed;
}

void ObjectTable::Delete(std::size_t number) {
  if (number >= slots_.size()) return;
  slots_[number] = std::monostate();
  lowestFree_ = std::min(lowestFree_, number);
}

const GraphicsObject& ObjectTable::At(std::size_t number) const {
  static const GraphicsObject nothing;
  return number < slots_.size() ? slots_[number] : nothing;
}

}  // namespace terramark::pictures
