#include "pictures/graphicsobjects.h"

#include <algorithm>
#include <utility>

namespace terramark::pictures {
namespace {

constexpr std::size_t MaxObjects = 65536;

Pen ReadPen(const MetafileRecord& record) {
  const int style = record.Word(0) & 0x0F;
  return {.Style = style <= 6 ? static_cast<PenStyle>(style) : PenStyle::Solid,
          .Width = record.Int(1),
          .Colour = record.Long(3)};
}

Brush ReadBrush(const MetafileRecord& record) {
  const int style = record.Word(0);
  return {.Style = style <= 2 ? static_cast<BrushStyle>(style) : BrushStyle::None,
          .Colour = record.Long(1),
          .Hatch = record.Word(3),
          .Tile = {}};
}

Font ReadFont(const MetafileRecord& record) {
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
          .Face = QByteArray(face.data(), std::min<qsizetype>(end - face.begin(), 32))};
}

Palette ReadPalette(const MetafileRecord& record) {
  Palette palette;
  const qsizetype count = std::min<qsizetype>({record.Word(1), (record.Words() - 2) / 2, 1024});
  for (qsizetype i = 0; i < count; ++i) {
    const std::uint32_t entry = record.Long(2 + 2 * i);
    palette.Entries.push_back(qRgb(entry & 0xFF, entry >> 8 & 0xFF, entry >> 16 & 0xFF));
  }
  return palette;
}

// Scans: how many edges, top, bottom, the edges in pairs, and how many once more.
Region ReadRegion(const MetafileRecord& record) {
  Region region;
  qsizetype at = 11;
  for (int scan = 0; scan < record.Word(5) && at < record.Words(); ++scan) {
    const int edges = record.Word(at);
    for (int i = 0; i + 1 < edges && at + 4 + i < record.Words(); i += 2) {
      region.Rects.emplace_back(QPoint(record.Int(at + 3 + i), record.Int(at + 1)),
                                QPoint(record.Int(at + 4 + i) - 1, record.Int(at + 2) - 1));
    }
    at += edges + 4;
  }
  return region;
}

}  // namespace

GraphicsObject ReadObject(const MetafileRecord& record) {
  switch (record.Function) {
    case 0x02FA:
      return ReadPen(record);
    case 0x02FC:
      return ReadBrush(record);
    case 0x02FB:
      return ReadFont(record);
    case 0x00F7:
      return ReadPalette(record);
    case 0x06FF:
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
  static const GraphicsObject Nothing;
  return number < slots_.size() ? slots_[number] : Nothing;
}

}  // namespace terramark::pictures
