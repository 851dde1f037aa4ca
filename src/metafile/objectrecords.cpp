#include <algorithm>
#include <span>
#include <utility>

#include "metafile/limits.h"
#include "metafile/recordplayers.h"

namespace terramark::metafile {
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
  // Numbers beyond the hatches mean a solid brush.
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

/// The colour of an entry of a palette record: red is the lowest byte, then green and blue.
QRgb EntryOf(const MetafileRecord& record, qsizetype entry) {
  const std::uint32_t colour = record.Long(2 + 2 * entry);
  return qRgb(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
}

Palette ReadPalette(const MetafileRecord& record) {
  std::vector<QRgb> entries;
  const qsizetype count =
      std::min<qsizetype>({record.Word(1), (record.Words() - 2) / 2, MaxPaletteEntries});
  for (qsizetype i = 0; i < count; ++i) entries.push_back(EntryOf(record, i));
  return Palette(std::move(entries));
}

/// Reads rows of rectangles. A row has the number of its edges, its top and bottom, the left and
/// right edges alternately, and the number again. Unusable when a row does not fit the record.
GraphicsObject ReadRegion(const MetafileRecord& record) {
  RegionObject region;
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
  region.Rects.shrink_to_fit();
  return region;
}

template <typename Read>
void AddObject(DeviceContext& context, const MetafileRecord& record, Read read) {
  Budget& cost = context.Target().Cost();
  // A region has a rectangle for two words; the other kinds take less.
  if (!cost.Keep(record.Words() / 2 * std::int64_t{sizeof(QRect)})) return;
  cost.Spend(static_cast<std::int64_t>(context.Objects.Add(read(record))));
}

}  // namespace

void PlayCreatePalette(DeviceContext& context, const MetafileRecord& record) {
  AddObject(context, record, ReadPalette);
}

void PlayCreatePenIndirect(DeviceContext& context, const MetafileRecord& record) {
  AddObject(context, record, ReadPen);
}

void PlayCreateFontIndirect(DeviceContext& context, const MetafileRecord& record) {
  AddObject(context, record, ReadFont);
}

void PlayCreateBrushIndirect(DeviceContext& context, const MetafileRecord& record) {
  AddObject(context, record, ReadBrush);
}

void PlayCreateRegion(DeviceContext& context, const MetafileRecord& record) {
  AddObject(context, record, ReadRegion);
}

void PlayDeleteObject(DeviceContext& context, const MetafileRecord& record) {
  context.Objects.Delete(record.Word(0));
}

void PlaySelectObject(DeviceContext& context, const MetafileRecord& record) {
  context.Select(context.Objects.At(record.Word(0)));
}

void PlaySelectPalette(DeviceContext& context, const MetafileRecord& record) {
  const auto* palette = std::get_if<Palette>(&context.Objects.At(record.Word(0)));
  if (palette != nullptr) context.State.CurrentPalette = *palette;
}

void PlaySetPaletteEntries(DeviceContext& context, const MetafileRecord& record) {
  const std::span<QRgb> entries = context.State.CurrentPalette.OwnEntries();
  if (!context.Target().Cost().Spend(std::ssize(entries))) return;
  for (qsizetype i = 0; i < record.Word(1) && 3 + 2 * i < record.Words(); ++i) {
    const std::size_t index =
        static_cast<std::size_t>(record.Word(0)) + static_cast<std::size_t>(i);
    if (index >= entries.size()) break;
    entries[index] = EntryOf(record, i);
  }
}

}  // namespace terramark::metafile
