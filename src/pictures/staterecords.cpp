#include <algorithm>
#include <cmath>

#include "pictures/recordplayers.h"

namespace terramark::pictures {
namespace {

// Multiplier and divisor of y, then of x; a ratio of nothing is no ratio.
QPointF Scaled(QPointF extent, const MetafileRecord& record) {
  const int yDivisor = record.Int(0);
  const int yFactor = record.Int(1);
  const int xDivisor = record.Int(2);
  const int xFactor = record.Int(3);
  if (yDivisor == 0 || yFactor == 0 || xDivisor == 0 || xFactor == 0) return extent;
  const QPointF scaled(extent.x() * xFactor / xDivisor, extent.y() * yFactor / yDivisor);
  constexpr double Limit = 1e9;
  const auto sane = [](double value) {
    return std::abs(value) > 1 / Limit && std::abs(value) < Limit;
  };
  return sane(scaled.x()) && sane(scaled.y()) ? scaled : extent;
}

// An extent of nothing does not count.
QPointF NewExtent(QPointF extent, QPoint wanted) {
  return wanted.x() != 0 && wanted.y() != 0 ? QPointF(wanted) : extent;
}

bool PlayMapping(DeviceContext& context, const MetafileRecord& record) {
  DeviceState& state = context.State;
  switch (record.Kind) {
    case RecordKind::SetMapMode:
      state.UpIsPositive =
          context.Measured() && record.Int(0) >= LoMetricMode && record.Int(0) <= TwipsMode;
      return true;
    case RecordKind::SetWindowOrg:
      state.WindowOrigin = record.PointYX(0);
      return true;
    case RecordKind::SetWindowExt:
      state.WindowExtent = NewExtent(state.WindowExtent, record.PointYX(0));
      return true;
    case RecordKind::SetViewportOrg:
      state.ViewportOrigin = record.PointYX(0);
      return true;
    case RecordKind::SetViewportExt:
      state.ViewportExtent = NewExtent(state.ViewportExtent, record.PointYX(0));
      return true;
    case RecordKind::OffsetWindowOrg:
      state.WindowOrigin += record.PointYX(0);
      return true;
    case RecordKind::OffsetViewportOrg:
      state.ViewportOrigin += record.PointYX(0);
      return true;
    case RecordKind::ScaleWindowExt:
      state.WindowExtent = Scaled(state.WindowExtent, record);
      return true;
    case RecordKind::ScaleViewportExt:
      state.ViewportExtent = Scaled(state.ViewportExtent, record);
      return true;
    default:
      return false;
  }
}

bool PlayObject(DeviceContext& context, const MetafileRecord& record) {
  switch (record.Kind) {
    case RecordKind::CreatePalette:
    case RecordKind::CreatePenIndirect:
    case RecordKind::CreateFontIndirect:
    case RecordKind::CreateBrushIndirect:
    case RecordKind::CreateRegion: {
      const std::size_t searched = context.Objects.Add(ReadObject(record));
      // What stays in memory weighs more than what is drawn.
      context.Target().Spend(static_cast<std::int64_t>(searched) + record.Words() * 32);
      return true;
    }
    case RecordKind::SelectObject:
      context.Select(context.Objects.At(record.Word(0)));
      return true;
    case RecordKind::SelectClipRegion:  // without a region it opens the clip
      if (!std::holds_alternative<Region>(context.Objects.At(record.Word(0)))) {
        context.Target().SetClip(QImage());
      } else {
        context.Select(context.Objects.At(record.Word(0)));
      }
      return true;
    case RecordKind::DeleteObject:
      context.Objects.Delete(record.Word(0));
      return true;
    case RecordKind::SelectPalette:
      if (const auto* palette = std::get_if<Palette>(&context.Objects.At(record.Word(0)))) {
        context.State.CurrentPalette = *palette;
      }
      return true;
    case RecordKind::SetPaletteEntries:
    case RecordKind::AnimatePalette: {
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
  switch (record.Kind) {
    case RecordKind::ExcludeClipRect:
      context.Target().ExcludeClip(rect());
      return true;
    case RecordKind::IntersectClipRect:
      context.Target().IntersectClip(rect());
      return true;
    case RecordKind::OffsetClipRgn:
      context.Target().OffsetClip(context.ToDevice(QPointF(record.PointYX(0))) -
                                  context.ToDevice(QPointF(0, 0)));
      return true;
    case RecordKind::SaveDC:
      context.Save();
      return true;
    case RecordKind::RestoreDC:
      context.Restore(record.Int(0));
      return true;
    default:
      return false;
  }
}

}  // namespace

bool PlayStateRecord(DeviceContext& context, const MetafileRecord& record) {
  DeviceState& state = context.State;
  switch (record.Kind) {
    case RecordKind::SetBkMode:
      state.Opaque = record.Int(0) != TransparentGround;
      return true;
    case RecordKind::SetRop2:
      state.Operation = std::clamp(record.Int(0), FirstOperation, LastOperation);
      return true;
    case RecordKind::SetPolyFillMode:
      state.Winding = record.Int(0) == WindingFill;
      return true;
    case RecordKind::SetStretchBltMode:
      state.StretchMode = record.Int(0);
      return true;
    case RecordKind::SetTextCharExtra:
      state.CharExtra = record.Int(0);
      return true;
    case RecordKind::SetTextAlign:
      state.TextAlign = record.Word(0);
      return true;
    case RecordKind::SetBkColor:
      state.BackColour = record.Long(0);
      return true;
    case RecordKind::SetTextColor:
      state.TextColour = record.Long(0);
      return true;
    case RecordKind::SetTextJustification:
      state.BreakCount = record.Int(0);
      state.BreakExtra = record.Int(1);
      return true;
    default:
      break;
  }
  return PlayMapping(context, record) || PlayObject(context, record) || PlayClip(context, record);
}

}  // namespace terramark::pictures
