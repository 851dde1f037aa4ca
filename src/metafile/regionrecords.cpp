#include <algorithm>
#include <cmath>

#include "metafile/limits.h"
#include "metafile/recordplayers.h"

namespace terramark::metafile {
namespace {

/// The rectangles of a region in pixels. A region is painted in logical units, unlike the clip that
/// is made from it. None for a number that is not a region's.
std::vector<QRect> RegionRects(DeviceContext& context, std::size_t number) {
  std::vector<QRect> rects;
  const auto* region = std::get_if<RegionObject>(&context.Objects.At(number));
  if (region == nullptr) return rects;
  for (const QRect& rect : region->Rects) {
    if (!context.Target().Cost().Spend(1)) return {};
    rects.push_back(context.ToDevice(rect.left(), rect.top(), rect.right() + 1, rect.bottom() + 1));
  }
  return rects;
}

Brush BrushAt(const DeviceContext& context, std::size_t number) {
  const auto* brush = std::get_if<Brush>(&context.Objects.At(number));
  return brush == nullptr ? context.State.CurrentBrush : *brush;
}

void PaintRects(DeviceContext& context, const std::vector<QRect>& rects, const Paint& paint) {
  for (const QRect& rect : rects) context.Target().PaintRectangle(rect, paint);
}

void FillRegion(DeviceContext& context, const MetafileRecord& record, const Brush& brush) {
  if (brush.Style == BrushStyle::None) return;
  PaintRects(context, RegionRects(context, record.Word(0)), context.BrushPaint(brush));
}

/// The pixels of the surface that the rectangles cover when they are moved.
PixelMask RegionMask(Surface& target, const std::vector<QRect>& rects, QPoint by) {
  PixelMask mask(target.Area().size(), 0);
  for (const QRect& rect : rects) {
    const QRect visible = rect.translated(by).intersected(target.Area());
    if (!target.Cost().Spend(1 + std::int64_t{visible.height()} * visible.width())) break;
    for (int y = visible.top(); y <= visible.bottom(); ++y) {
      std::fill_n(mask.Row(y) + visible.left(), visible.width(), std::uint8_t{1});
    }
  }
  return mask;
}

/// Removes the pixels from a mask that another of its size does not have.
void Intersect(PixelMask& mask, const PixelMask& other) {
  for (int y = 0; y < mask.Size().height(); ++y) {
    std::uint8_t* row = mask.Row(y);
    const std::uint8_t* with = other.Row(y);
    for (int x = 0; x < mask.Size().width(); ++x) row[x] &= with[x];
  }
}

/// Removes the pixels from a mask that another of its size has.
void Subtract(PixelMask& mask, const PixelMask& other) {
  for (int y = 0; y < mask.Size().height(); ++y) {
    std::uint8_t* row = mask.Row(y);
    const std::uint8_t* without = other.Row(y);
    for (int x = 0; x < mask.Size().width(); ++x) row[x] &= without[x] ^ 1U;
  }
}

/// The frame is what the region loses when it is intersected with copies of itself that are moved
/// left and right by the frame's width, and up and down by its height.
PixelMask FrameMask(Surface& target, const std::vector<QRect>& rects, int width, int height) {
  PixelMask inside = RegionMask(target, rects, {width, 0});
  for (const QPoint by : {QPoint(-width, 0), QPoint(0, height), QPoint(0, -height)}) {
    Intersect(inside, RegionMask(target, rects, by));
  }
  PixelMask frame = RegionMask(target, rects, {0, 0});
  Subtract(frame, inside);
  return frame;
}

}  // namespace

void PlayFillRegion(DeviceContext& context, const MetafileRecord& record) {
  FillRegion(context, record, BrushAt(context, record.Word(1)));
}

void PlayFrameRegion(DeviceContext& context, const MetafileRecord& record) {
  Surface& target = context.Target();
  const Brush brush = BrushAt(context, record.Word(1));
  const std::vector<QRect> rects = RegionRects(context, record.Word(0));
  if (brush.Style == BrushStyle::None) return;
  QRect bounds;
  for (const QRect& rect : rects) bounds = bounds.united(rect);
  if (bounds.isEmpty() || !target.BeginShape(bounds)) return;
  constexpr std::int64_t Passes = 8;  // the masks, and how they are combined
  if (!target.Cost().Spend(Passes * target.Area().width() * target.Area().height())) return;
  const QPointF scale = context.Scale();
  const int width =
      static_cast<int>(std::clamp(std::abs(record.Int(3) * scale.x()), 1.0, MaxDevice));
  const int height =
      static_cast<int>(std::clamp(std::abs(record.Int(2) * scale.y()), 1.0, MaxDevice));
  target.PaintMask(FrameMask(target, rects, width, height), {0, 0}, context.BrushPaint(brush));
}

void PlayPaintRegion(DeviceContext& context, const MetafileRecord& record) {
  FillRegion(context, record, context.State.CurrentBrush);
}

void PlayInvertRegion(DeviceContext& context, const MetafileRecord& record) {
  PaintRects(context, RegionRects(context, record.Word(0)),
             {.Operation = InvertOperation, .Pattern = {}});
}

}  // namespace terramark::metafile
