#include "metafile/strokes.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <span>

namespace terramark::metafile {
namespace {

/// Pixels drawn and left out alternately; empty for a solid line.
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

bool InDash(std::span<const int> dashes, std::int64_t step) {
  const std::int64_t length = std::accumulate(dashes.begin(), dashes.end(), std::int64_t{0});
  if (length == 0) return true;
  std::int64_t left = step % length;
  for (std::size_t i = 0; i < dashes.size(); ++i) {
    left -= dashes[i];
    if (left < 0) return i % 2 == 0;
  }
  return true;
}

QRect BoundingRect(const std::vector<QPoint>& points) {
  QRect bounds(points.front(), QSize(1, 1));
  for (const QPoint& point : points) bounds = bounds.united(QRect(point, QSize(1, 1)));
  return bounds;
}

QRect BoundingRect(QPoint from, QPoint to) {
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
    const QRect bounds = BoundingRect(from, to);
    if (!target.Cost().Spend(1)) return;
    if (!target.BeginShape(bounds)) continue;
    const QRect visible = bounds.intersected(target.Area());
    if (!target.Cost().Spend(std::max(visible.width(), visible.height()))) return;
    ScanLine(from, to, target.Area(), [&](QPoint pixel, std::int64_t step) {
      if (InDash(dashes, drawn + step)) {
        target.PaintPixel(pixel, paint);
      } else if (context.State.Opaque) {
        target.PaintPixel(pixel, gap);
      }
    });
    drawn += std::max(std::abs(to.x() - from.x()), std::abs(to.y() - from.y()));
  }
}

/// The rectangle of a wide line. Its corners are on whole pixels, and it is never thinner than the
/// pen, so that no border has a hole.
QPolygonF LineQuad(QPoint from, QPoint to, int width) {
  const double dx = to.x() - from.x();
  const double dy = to.y() - from.y();
  const double length = std::hypot(dx, dy);
  if (dx == 0 || dy == 0) {
    const QRect along = BoundingRect(from, to);
    const int before = width / 2;
    return dx == 0 ? QPolygonF(QRectF(from.x() - before, along.top(), width, along.height() - 1))
                   : QPolygonF(QRectF(along.left(), from.y() - before, along.width() - 1, width));
  }
  const int across = static_cast<int>(width * std::abs(dy) / length) + 1;
  const int down = static_cast<int>(width * std::abs(dx) / length) + 1;
  const bool falls = (dx > 0) == (dy > 0);
  const QPoint left(-(across / 2), falls ? down / 2 : -(down / 2));
  const QPoint right = left + QPoint(across, falls ? -down : down);
  return QPolygonF({from + left, to + left, to + right, from + right});
}

/// The end of a wide line: a filled circle.
class Disc {
 public:
  explicit Disc(int side) : side_(side), reach_(static_cast<std::size_t>(side)) {
    for (const QPoint& point : EllipseQuarter(side, side)) {
      for (const int y : {point.y(), side - 1 - point.y()}) {
        int& row = reach_[static_cast<std::size_t>(y)];
        row = std::max(row, point.x());
      }
    }
  }

  QRect BoxAt(QPoint centre) const {
    return {centre.x() - side_ / 2, centre.y() - side_ / 2, side_, side_};
  }

  void Scan(QPoint centre, const QRect& area, const SpanSink& sink) const {
    const QRect box = BoxAt(centre);
    const QRect visible = box.intersected(area);
    for (int y = visible.top(); y <= visible.bottom(); ++y) {
      const int reach = reach_[static_cast<std::size_t>(y - box.top())];
      const int x0 = std::max(visible.left(), box.right() - reach);
      const int x1 = std::min(visible.right(), box.left() + reach) + 1;
      if (x0 < x1) sink(y, x0, x1);
    }
  }

 private:
  int side_;
  std::vector<int> reach_;  // how far each row goes to the right, from the box's left edge
};

/// The whole shape is collected before it is painted: an operation that inverts must not be applied
/// twice where a line crosses itself.
void WideStroke(DeviceContext& context, const std::vector<QPoint>& points, int width) {
  Surface& target = context.Target();
  const QRect bounds = BoundingRect(points).adjusted(-width, -width, width, width);
  if (!target.BeginShape(bounds) || !target.Cost().Spend(width)) return;
  const Disc disc(width);
  const QRect area = bounds.intersected(target.Area());
  PixelMask mask(area.size(), 0);
  const auto mark = [&](int y, int x0, int x1) {
    std::fill_n(mask.Row(y - area.top()) + (x0 - area.left()), x1 - x0, std::uint8_t{1});
  };
  for (std::size_t i = 0; i < points.size(); ++i) {
    const QPoint from = points[i];
    const QPoint to = points[std::min(i + 1, points.size() - 1)];
    const QRect reached = BoundingRect(from, to).adjusted(-width, -width, width, width);
    const QRect visible = reached.intersected(area);
    if (!target.Cost().Spend(1 + std::int64_t{visible.width()} * visible.height())) return;
    if (visible.isEmpty()) continue;
    disc.Scan(from, area, mark);
    if (from == to) continue;
    const std::vector<QPolygonF> band{LineQuad(from, to, width)};
    const QRect around = band.front().boundingRect().toAlignedRect().intersected(area);
    ScanPolygons(band, FillRule::Winding, around, mark);
  }
  target.PaintMask(mask, area.topLeft(), context.PenPaint());
}

}  // namespace

void Stroke(DeviceContext& context, const std::vector<QPoint>& points, LineShape shape) {
  if (points.size() < 2 || !context.HasPen()) return;
  std::vector<QPoint> line = points;
  if (shape == LineShape::Closed && line.front() != line.back()) line.push_back(line.front());
  const int width = context.PenWidth();
  if (width == 1) {
    ThinStroke(context, line);
  } else {
    WideStroke(context, line, width);
  }
}

}  // namespace terramark::metafile
