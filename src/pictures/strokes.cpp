#include "pictures/strokes.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <span>

#include "pictures/newimage.h"

namespace terramark::pictures {
namespace {

// Past what is painted.
constexpr std::int64_t WorkPerLinePixel = 2;

// Pixels drawn and left out by turns; none for an unbroken line.
std::span<const int> DashesOf(PenStyle style) {
  static constexpr int Dash[] = {18, 6};
  static constexpr int Dot[] = {3, 3};
  static constexpr int DashDot[] = {9, 6, 3, 6};
  static constexpr int DashDotDot[] = {9, 3, 3, 3, 3, 3};
  switch (style) {
    case PenStyle::Dash:
      return Dash;
    case PenStyle::Dot:
      return Dot;
    case PenStyle::DashDot:
      return DashDot;
    case PenStyle::DashDotDot:
      return DashDotDot;
    default:
      return {};
  }
}

bool IsOn(std::span<const int> dashes, std::int64_t step) {
  const std::int64_t length = std::accumulate(dashes.begin(), dashes.end(), std::int64_t{0});
  if (length == 0) return true;
  std::int64_t left = step % length;
  for (std::size_t i = 0; i < dashes.size(); ++i) {
    left -= dashes[i];
    if (left < 0) return i % 2 == 0;
  }
  return true;
}

QRect BoundsOf(const std::vector<QPoint>& points) {
  QRect bounds(points.front(), QSize(1, 1));
  for (const QPoint& point : points) bounds = bounds.united(QRect(point, QSize(1, 1)));
  return bounds;
}

QRect BoundsOf(QPoint from, QPoint to) {
  return {QPoint(std::min(from.x(), to.x()), std::min(from.y(), to.y())),
          QPoint(std::max(from.x(), to.x()), std::max(from.y(), to.y()))};
}

void ThinStroke(DeviceContext& context, const std::vector<QPoint>& points) {
  Surface& target = context.Target();
  const Paint paint = context.PenPaint();
  Paint gap = paint;
  gap.Colour = context.Resolve(context.State.BackColour);
  const std::span<const int> dashes = DashesOf(context.State.CurrentPen.Style);
  std::int64_t drawn = 0;
  for (std::size_t i = 0; i + 1 < points.size(); ++i) {
    const QPoint from = points[i];
    const QPoint to = points[i + 1];
    const QRect bounds = BoundsOf(from, to);
    if (!target.Touch(bounds)) continue;
    const QRect visible = bounds.intersected(target.Area());
    if (!target.Spend(WorkPerLinePixel * std::max(visible.width(), visible.height()))) return;
    ScanLine(from, to, target.Area(), [&](QPoint pixel, std::int64_t step) {
      if (IsOn(dashes, drawn + step)) {
        target.Pixel(pixel, paint);
      } else if (context.State.Opaque) {
        target.Pixel(pixel, gap);
      }
    });
    drawn += std::max(std::abs(to.x() - from.x()), std::abs(to.y() - from.y()));
  }
}

QPolygonF Band(QPoint from, QPoint to, int width) {
  const double dx = to.x() - from.x();
  const double dy = to.y() - from.y();
  const double length = std::hypot(dx, dy);
  if (dx == 0 || dy == 0) {
    const QRect along = BoundsOf(from, to);
    const int before = width / 2;
    return dx == 0 ? QPolygonF(QRectF(from.x() - before, along.top(), width, along.height() - 1))
                   : QPolygonF(QRectF(along.left(), from.y() - before, along.width() - 1, width));
  }
  const QPointF side(width * dy / length / 2, -width * dx / length / 2);
  return QPolygonF({from + side, to + side, to - side, from - side});
}

// The whole shape is collected before it is painted: where a line crosses itself an operation that
// inverts must not act twice.
void WideStroke(DeviceContext& context, const std::vector<QPoint>& points, int width) {
  Surface& target = context.Target();
  const QRect bounds = BoundsOf(points).adjusted(-width, -width, width, width);
  if (!target.Touch(bounds)) return;
  const QRect area = bounds.intersected(target.Area());
  QImage mask = NewImage(area.size(), QImage::Format_Grayscale8);
  mask.fill(0);
  const auto mark = [&](int y, int x0, int x1) {
    std::fill_n(mask.scanLine(y - area.top()) + (x0 - area.left()), x1 - x0, uchar{1});
  };
  for (std::size_t i = 0; i < points.size(); ++i) {
    const QRect disc(points[i].x() - width / 2, points[i].y() - width / 2, width, width);
    const QRect seen = disc.intersected(area);
    if (!seen.isEmpty()) {
      if (!target.Spend(std::int64_t{seen.width()} * seen.height() / 4)) return;
      ScanEllipse(disc, area, mark);
    }
    if (i + 1 == points.size() || points[i] == points[i + 1]) continue;
    const std::vector<QPolygonF> band{Band(points[i], points[i + 1], width)};
    const QRect around = band.front().boundingRect().toAlignedRect().intersected(area);
    if (around.isEmpty()) continue;
    if (!target.Spend(std::int64_t{around.height()} * (8 + around.width() / 8))) return;
    ScanPolygons(band, true, around, mark);
  }
  target.Mask(mask, area.topLeft(), context.PenPaint());
}

}  // namespace

void Stroke(DeviceContext& context, const std::vector<QPoint>& points, bool closed) {
  if (points.size() < 2 || !context.HasPen()) return;
  std::vector<QPoint> line = points;
  if (closed && line.front() != line.back()) line.push_back(line.front());
  const int width = context.PenWidth();
  if (width == 1) {
    ThinStroke(context, line);
  } else {
    WideStroke(context, line, width);
  }
}

}  // namespace terramark::pictures
