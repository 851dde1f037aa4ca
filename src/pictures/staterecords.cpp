#include <algorithm>

#include "pictures/recordplayers.h"

namespace terramark::pictures {
namespace {

constexpr int ModeLoMetric = 2;
constexpr int ModeTwips = 6;

void Scale(QPointF& extent, const MetafileRecord& record) {
  // Multiplier and divisor of y, then of x; a ratio of nothing is no ratio.
  const int yDivisor = record.Int(0);
  const int yFactor = record.Int(1);
  const int xDivisor = record.Int(2);
  const int xFactor = record.Int(3);
  if (yDivisor == 0 || yFactor == 0 || xDivisor == 0 || xFactor == 0) return;
  const QPointF scaled(extent.x() * xFactor / xDivisor, extent.y() * yFactor / yDivisor);
  constexpr double Limit = 1e9;
  const auto sane = [](double value) {
    return std::abs(value) > 1 / Limit && std::abs(value) < Limit;
  };
  if (sane(scaled.x()) && sane(scaled.y())) extent = scaled;
}

void SetExtent(QPointF& extent, QPoint to) {
  if (to.x() != 0 && to.y() != 0) extent = to;
}

bool PlayMapping(DeviceContext& context, const MetafileRecord& record) {
  DeviceState& state = context.State;
  switch (record.Function) {
    case 0x0103:  // SetMapMode
      state.UpIsPositive =
          context.Measured() && record.Int(0) >= ModeLoMetric && record.Int(0) <= ModeTwips;
      return true;
    case 0x020B:
      state.WindowOrigin = record.PointYX(0);
      return true;
    case 0x020C:
      SetExtent(state.WindowExtent, record.PointYX(0));
      return true;
    case 0x020D:
      state.ViewportOrigin = record.PointYX(0);
      return true;
    case 0x020E:
      SetExtent(state.ViewportExtent, record.PointYX(0));
      return true;
    case 0x020F:
      state.WindowOrigin += record.PointYX(0);
      return true;
    case 0x0211:
      state.ViewportOrigin += record.PointYX(0);
      return true;
    case 0x0410:
      Scale(state.WindowExtent, record);
      return true;
    case 0x0412:
      Scale(state.ViewportExtent, record);
      return true;
    default:
      return false;
  }
}

bool PlayObject(DeviceContext& context, const MetafileRecord& record) {
  switch (record.Function) {
    case 0x00F7:    // CreatePalette
    case 0x02FA:    // CreatePenIndirect
    case 0x02FB:    // CreateFontIndirect
    case 0x02FC:    // CreateBrushIndirect
    case 0x06FF: {  // CreateRegion
      const std::size_t searched = context.Objects.Add(ReadObject(record));
      // What stays in memory weighs more than what is drawn.
      context.Target().Spend(static_cast<std::int64_t>(searched) + record.Words() * 32);
      return true;
    }
    case 0x012D:  // SelectObject
      context.Select(context.Objects.At(record.Word(0)));
      return true;
    case 0x012C:  // SelectClipRegion; without a region it opens the clip
      if (!std::holds_alternative<Region>(context.Objects.At(record.Word(0)))) {
        context.Target().SetClip(QImage());
      } else {
        context.Select(context.Objects.At(record.Word(0)));
      }
      return true;
    case 0x01F0:
      context.Objects.Delete(record.Word(0));
      return true;
    case 0x0234:  // SelectPalette
      if (const auto* palette = std::get_if<Palette>(&context.Objects.At(record.Word(0)))) {
        context.State.CurrentPalette = *palette;
      }
      return true;
    case 0x0037:    // SetPaletteEntries
    case 0x0436: {  // AnimatePalette
      std::vector<QRgb>& entries = context.State.CurrentPalette.Entries;
      for (qsizetype i = 0; i < record.Word(1) && 3 + 2 * i < record.Words(); ++i) {
        const std::size_t index =
            static_cast<std::size_t>(record.Word(0)) + static_cast<std::size_t>(i);
        const std::uint32_t entry = record.Long(2 + 2 * i);
        if (index >= entries.size()) break;
        entries[index] = qRgb(entry & 0xFF, entry >> 8 & 0xFF, entry >> 16 & 0xFF);
      }
      return true;
    }
    default:
      return false;
  }
}

bool PlayClip(DeviceContext& context, const MetafileRecord& record) {
  const auto rect = [&] {
    return context.ToDevice(record.Int(3), record.Int(2), record.Int(1), record.Int(0));
  };
  switch (record.Function) {
    case 0x0415:
      context.Target().ExcludeClip(rect());
      return true;
    case 0x0416:
      context.Target().IntersectClip(rect());
      return true;
    case 0x0220:  // OffsetClipRgn
      context.Target().OffsetClip(context.ToDevice(QPointF(record.PointYX(0))) -
                                  context.ToDevice(QPointF(0, 0)));
      return true;
    case 0x001E:
      context.Save();
      return true;
    case 0x0127:
      context.Restore(record.Int(0));
      return true;
    default:
      return false;
  }
}

}  // namespace

bool PlayStateRecord(DeviceContext& context, const MetafileRecord& record) {
  DeviceState& state = context.State;
  switch (record.Function) {
    case 0x0102:
      state.Opaque = record.Int(0) != 1;
      return true;
    case 0x0104:
      state.Operation = std::clamp(record.Int(0), 1, 16);
      return true;
    case 0x0106:
      state.Winding = record.Int(0) == 2;
      return true;
    case 0x0107:
      state.StretchMode = record.Int(0);
      return true;
    case 0x0108:
      state.CharExtra = record.Int(0);
      return true;
    case 0x012E:
      state.TextAlign = record.Word(0);
      return true;
    case 0x0201:
      state.BackColour = record.Long(0);
      return true;
    case 0x0209:
      state.TextColour = record.Long(0);
      return true;
    case 0x020A:  // SetTextJustification
      state.BreakCount = record.Int(0);
      state.BreakExtra = record.Int(1);
      return true;
    default:
      break;
  }
  return PlayMapping(context, record) || PlayObject(context, record) || PlayClip(context, record);
}

}  // namespace terramark::pictures
