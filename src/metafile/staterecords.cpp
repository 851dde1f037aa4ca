#include <algorithm>
#include <cmath>
#include <variant>

#include "metafile/recordplayers.h"

namespace terramark::metafile {
namespace {

/// The record has divisor and factor of y, then of x. A 0 among them changes nothing.
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

/// An extent of 0 changes nothing.
QPointF NewExtent(QPointF extent, QPoint wanted) {
  return wanted.x() != 0 && wanted.y() != 0 ? QPointF(wanted) : extent;
}

/// The record has the sides in the order bottom, right, top, left.
QRect RectOf(const DeviceContext& context, const MetafileRecord& record) {
  return context.ToDevice(record.Int(3), record.Int(2), record.Int(1), record.Int(0));
}

}  // namespace

void PlaySaveDC(DeviceContext& context, const MetafileRecord& /*record*/) {
  context.Save();
}

void PlayRestoreDC(DeviceContext& context, const MetafileRecord& record) {
  context.Restore(record.Int(0));
}

void PlaySetBkMode(DeviceContext& context, const MetafileRecord& record) {
  context.State.Opaque = record.Int(0) != TransparentBackground;
}

void PlaySetRop2(DeviceContext& context, const MetafileRecord& record) {
  context.State.Operation = std::clamp(record.Int(0), FirstOperation, LastOperation);
}

void PlaySetPolyFillMode(DeviceContext& context, const MetafileRecord& record) {
  context.State.PolygonFill =
      record.Int(0) == WindingFill ? FillRule::Winding : FillRule::Alternate;
}

void PlaySetStretchBltMode(DeviceContext& context, const MetafileRecord& record) {
  context.State.StretchMode = record.Int(0);
}

void PlaySetTextCharExtra(DeviceContext& context, const MetafileRecord& record) {
  context.State.CharExtra = record.Int(0);
}

void PlaySetTextAlign(DeviceContext& context, const MetafileRecord& record) {
  context.State.TextAlign = record.Word(0);
}

void PlaySetTextJustification(DeviceContext& context, const MetafileRecord& record) {
  context.State.BreakCount = record.Int(0);
  context.State.BreakExtra = record.Int(1);
}

void PlaySetBkColor(DeviceContext& context, const MetafileRecord& record) {
  context.State.BackColour = record.Long(0);
}

void PlaySetTextColor(DeviceContext& context, const MetafileRecord& record) {
  context.State.TextColour = record.Long(0);
}

void PlaySetMapMode(DeviceContext& context, const MetafileRecord& record) {
  context.State.UpIsPositive =
      context.Measured() && record.Int(0) >= LoMetricMode && record.Int(0) <= TwipsMode;
}

void PlaySetWindowOrg(DeviceContext& context, const MetafileRecord& record) {
  context.State.WindowOrigin = record.PointYX(0);
}

void PlaySetWindowExt(DeviceContext& context, const MetafileRecord& record) {
  context.State.WindowExtent = NewExtent(context.State.WindowExtent, record.PointYX(0));
}

void PlaySetViewportOrg(DeviceContext& context, const MetafileRecord& record) {
  context.State.ViewportOrigin = record.PointYX(0);
}

void PlaySetViewportExt(DeviceContext& context, const MetafileRecord& record) {
  context.State.ViewportExtent = NewExtent(context.State.ViewportExtent, record.PointYX(0));
}

void PlayOffsetWindowOrg(DeviceContext& context, const MetafileRecord& record) {
  context.State.WindowOrigin += record.PointYX(0);
}

void PlayOffsetViewportOrg(DeviceContext& context, const MetafileRecord& record) {
  context.State.ViewportOrigin += record.PointYX(0);
}

void PlayScaleWindowExt(DeviceContext& context, const MetafileRecord& record) {
  context.State.WindowExtent = Scaled(context.State.WindowExtent, record);
}

void PlayScaleViewportExt(DeviceContext& context, const MetafileRecord& record) {
  context.State.ViewportExtent = Scaled(context.State.ViewportExtent, record);
}

/// Without a region the clip is removed.
void PlaySelectClipRegion(DeviceContext& context, const MetafileRecord& record) {
  const GraphicsObject& object = context.Objects.At(record.Word(0));
  if (std::holds_alternative<RegionObject>(object)) {
    context.Select(object);
  } else {
    context.Target().SetClip(nullptr);
  }
}

void PlayExcludeClipRect(DeviceContext& context, const MetafileRecord& record) {
  context.Target().ExcludeClip(RectOf(context, record));
}

void PlayIntersectClipRect(DeviceContext& context, const MetafileRecord& record) {
  context.Target().IntersectClip(RectOf(context, record));
}

void PlayOffsetClipRgn(DeviceContext& context, const MetafileRecord& record) {
  context.Target().OffsetClip(context.ToDevice(QPointF(record.PointYX(0))) -
                              context.ToDevice(QPointF(0, 0)));
}

}  // namespace terramark::metafile
