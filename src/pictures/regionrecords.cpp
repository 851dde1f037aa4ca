#include <QRegion>
#include <algorithm>
#include <cmath>

#include "pictures/recordplayers.h"

namespace terramark::pictures {
namespace {

// Regions are painted in logical units, unlike the clip that is made of them.
std::vector<QRect> RegionRects(const DeviceContext& context, std::size_t number) {
  std::vector<QRect> rects;
  const auto* region = std::get_if<Region>(&context.Objects.At(number));
  if (region == nullptr) return rects;
  for (const QRect& rect : region->Rects) {
    rects.push_back(context.ToDevice(rect.left(), rect.top(), rect.right() + 1, rect.bottom() + 1));
  }
  return rects;
}

Paint NumberedBrush(const DeviceContext& context, std::size_t number) {
  const auto* brush = std::get_if<Brush>(&context.Objects.At(number));
  return context.BrushPaint(brush == nullptr ? context.State.CurrentBrush : *brush);
}

void PaintRects(DeviceContext& context, const std::vector<QRect>& rects, const Paint& paint) {
  for (const QRect& rect : rects) context.Target().Rectangle(rect, paint);
}

void FrameRegion(DeviceContext& context, const MetafileRecord& record) {
  constexpr std::size_t MaxRects = 1000;
  const std::vector<QRect> rects = RegionRects(context, record.Word(0));
  if (rects.size() > MaxRects) return;
  if (!context.Target().Spend(static_cast<std::int64_t>(rects.size() * rects.size()))) return;
  QRegion whole;
  for (const QRect& rect : rects) whole += rect;
  const QPointF scale = context.Scale();
  const int width = static_cast<int>(std::clamp(std::abs(record.Int(3) * scale.x()), 1.0, 1e6));
  const int height = static_cast<int>(std::clamp(std::abs(record.Int(2) * scale.y()), 1.0, 1e6));
  const QRegion inside = whole & whole.translated(width, 0) & whole.translated(-width, 0) &
                         whole.translated(0, height) & whole.translated(0, -height);
  const QRegion frame = whole - inside;
  PaintRects(context, {frame.begin(), frame.end()}, NumberedBrush(context, record.Word(1)));
}

void PaintRegion(DeviceContext& context, const MetafileRecord& record, const Paint& paint) {
  PaintRects(context, RegionRects(context, record.Word(0)), paint);
}

}  // namespace

bool PlayRegionRecord(DeviceContext& context, const MetafileRecord& record) {
  switch (record.Kind) {
    case RecordKind::FillRegion:
      PaintRegion(context, record, NumberedBrush(context, record.Word(1)));
      return true;
    case RecordKind::FrameRegion:
      FrameRegion(context, record);
      return true;
    case RecordKind::PaintRegion:
      PaintRegion(context, record, context.BrushPaint(context.State.CurrentBrush));
      return true;
    case RecordKind::InvertRegion: {
      Paint paint;
      paint.Operation = InvertOperation;
      PaintRegion(context, record, paint);
      return true;
    }
    default:
      return false;
  }
}

}  // namespace terramark::pictures
