#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "metafile/limits.h"
#include "metafile/recordplayers.h"
#include "metafile/strokes.h"

namespace terramark::metafile {
namespace {

/// The points of a shape: `count` pairs of words from the word `at`.
std::vector<QPoint> ReadPoints(DeviceContext& context, const MetafileRecord& record, qsizetype at,
                               int count) {
  const qsizetype present = std::clamp<qsizetype>((record.Words() - at) / 2, 0, count);
  if (!context.Target().Cost().Spend(present)) return {};
  std::vector<QPoint> points;
  points.reserve(static_cast<std::size_t>(present));
  for (qsizetype i = 0; i < present; ++i) {
    points.push_back(context.ToDevice(QPointF(record.Int(at + 2 * i), record.Int(at + 2 * i + 1))));
  }
  return points;
}

QPolygonF PolygonOf(const std::vector<QPoint>& points) {
  QPolygonF polygon;
  polygon.reserve(static_cast<qsizetype>(points.size()));
  for (const QPoint& point : points) polygon.append(point);
  return polygon;
}

void FillShapes(DeviceContext& context, const std::vector<std::vector<QPoint>>& shapes,
                FillRule rule) {
  if (!context.HasBrush()) return;
  std::vector<QPolygonF> polygons;
  polygons.reserve(shapes.size());
  for (const auto& shape : shapes) {
    if (!context.Target().Cost().Spend(std::ssize(shape))) return;
    polygons.push_back(PolygonOf(shape));
  }
  context.Target().PaintPolygons(polygons, rule, context.BrushPaint(context.State.CurrentBrush));
}

void DrawPolygons(DeviceContext& context, const std::vector<std::vector<QPoint>>& shapes) {
  FillShapes(context, shapes, context.State.PolygonFill);
  for (const auto& shape : shapes) Stroke(context, shape, LineShape::Closed);
}

/// The box of a shape's outline, including its right and bottom edges. The width of an inside-frame
/// pen is inside the box.
QRect OutlineBox(const DeviceContext& context, const QRect& box) {
  QRect outline = box;
  if (context.State.CurrentPen.Style == PenStyle::InsideFrame) {
    const int width = context.PenWidth();
    outline.adjust(width / 2, width / 2, -(width - 1) / 2, -(width - 1) / 2);
  }
  return outline;
}

void DrawRectangle(DeviceContext& context, const QRect& box) {
  if (box.isEmpty()) return;
  const QRect outline = OutlineBox(context, box);
  if (context.HasBrush()) {
    const bool thin = context.HasPen() && context.PenWidth() == 1;
    const QRect inside = thin ? outline.adjusted(1, 1, -1, -1) : outline.adjusted(0, 0, -1, -1);
    context.Target().PaintRectangle(inside, context.BrushPaint(context.State.CurrentBrush));
  }
  Stroke(context,
         {outline.topRight(), outline.topLeft(), outline.bottomLeft(), outline.bottomRight()},
         LineShape::Closed);
}

/// The outline of a box with elliptic corners of the given full size; an ellipse when the corners
/// fill the box. Along the corners the points are one pixel apart.
std::vector<QPoint> RoundOutline(const QRect& box, QSize corner) {
  const std::vector<QPoint> quarter = EllipseQuarter(corner.width(), corner.height());
  const std::vector<QPoint> backwards(quarter.rbegin(), quarter.rend());
  const int left = box.left() + corner.width() - 1;
  const int top = box.top() + corner.height() - 1;
  const int right = box.right() - corner.width() + 1;
  const int bottom = box.bottom() - corner.height() + 1;
  std::vector<QPoint> points;
  points.reserve(4 * quarter.size());
  for (const QPoint p : quarter) points.emplace_back(right + p.x(), bottom + p.y());
  for (const QPoint p : backwards) points.emplace_back(left - p.x(), bottom + p.y());
  for (const QPoint p : quarter) points.emplace_back(left - p.x(), top - p.y());
  for (const QPoint p : backwards) points.emplace_back(right + p.x(), top - p.y());
  return points;
}

void DrawRound(DeviceContext& context, const QRect& box, QSize corner) {
  if (box.isEmpty()) return;
  const int pen = context.HasPen() ? context.PenWidth() / 2 : 0;
  if (!context.Target().BeginShape(box.adjusted(-pen, -pen, pen, pen))) return;
  const QRect outline = OutlineBox(context, box);
  // Corners this small are square. A pen that is wider than the box leaves nothing to round either,
  // and still paints.
  constexpr int SquareCorner = 2;
  const QSize size = corner.boundedTo(outline.size());
  if (std::min(size.width(), size.height()) <= SquareCorner) return DrawRectangle(context, box);
  if (size.width() > MaxRoundSide || size.height() > MaxRoundSide) return;
  if (!context.Target().Cost().Spend(size.width() + size.height())) return;
  const std::vector<QPoint> points = RoundOutline(outline, size);
  if (context.HasBrush()) FillShapes(context, {points}, FillRule::Winding);
  Stroke(context, points, LineShape::Closed);
}

enum class ArcKind { Open, Chord, Pie };

/// Counter-clockwise from the ray through `from` to the ray through `to`.
void DrawArc(DeviceContext& context, const MetafileRecord& record, ArcKind kind) {
  const QRect box = OutlineBox(
      context, context.ToDevice(record.Int(7), record.Int(6), record.Int(5), record.Int(4)));
  if (box.isEmpty() || !context.Target().BeginShape(box)) return;
  const QPointF to = context.ToDevice(QPointF(record.PointYX(0)));
  const QPointF from = context.ToDevice(QPointF(record.PointYX(2)));
  const double radiusX = (box.width() - 1) / 2.0;
  const double radiusY = (box.height() - 1) / 2.0;
  const QPointF centre(box.left() + radiusX, box.top() + radiusY);
  const auto angle = [&](QPointF ray) {
    return std::atan2(-(ray.y() - centre.y()) * std::max(radiusX, 0.5),
                      (ray.x() - centre.x()) * std::max(radiusY, 0.5));
  };
  constexpr double FullTurn = 2 * std::numbers::pi;
  const double start = angle(from);
  double sweep = angle(to) - start;
  if (sweep <= 0) sweep += FullTurn;

  const double length = sweep * std::max(radiusX, radiusY);
  const int steps = static_cast<int>(std::clamp(length, 8.0, double{MaxArcSteps}));
  if (!context.Target().Cost().Spend(steps)) return;
  std::vector<QPoint> points;
  for (int i = 0; i <= steps; ++i) {
    const double at = start + sweep * i / steps;
    const QPoint point(static_cast<int>(std::floor(centre.x() + radiusX * std::cos(at) + 0.5)),
                       static_cast<int>(std::floor(centre.y() - radiusY * std::sin(at) + 0.5)));
    if (points.empty() || points.back() != point) points.push_back(point);
  }
  if (kind == ArcKind::Pie) {
    points.emplace_back(static_cast<int>(std::floor(centre.x() + 0.5)),
                        static_cast<int>(std::floor(centre.y() + 0.5)));
  }
  if (kind != ArcKind::Open) FillShapes(context, {points}, FillRule::Winding);
  Stroke(context, points, kind == ArcKind::Open ? LineShape::Open : LineShape::Closed);
}

void DrawFlood(DeviceContext& context, const MetafileRecord& record, qsizetype colourAt,
               forms::FloodStops stops) {
  const QPoint seed = context.ToDevice(QPointF(record.PointYX(colourAt + 2)));
  if (!context.HasBrush() || !context.Target().BeginShape(QRect(seed, QSize(1, 1)))) return;
  context.Target().Flood(seed, context.Resolve(record.Long(colourAt)), stops,
                         context.BrushPaint(context.State.CurrentBrush));
}

/// The box of a shape. Its sides begin at the word `at`: bottom, right, top, left.
QRect BoxOf(const DeviceContext& context, const MetafileRecord& record, qsizetype at) {
  return context.ToDevice(record.Int(at + 3), record.Int(at + 2), record.Int(at + 1),
                          record.Int(at));
}

}  // namespace

void PlayLineTo(DeviceContext& context, const MetafileRecord& record) {
  const QPoint to = record.PointYX(0);
  Stroke(context,
         {context.ToDevice(QPointF(context.State.Position)), context.ToDevice(QPointF(to))},
         LineShape::Open);
  context.State.Position = to;
}

void PlayMoveTo(DeviceContext& context, const MetafileRecord& record) {
  context.State.Position = record.PointYX(0);
}

void PlayPolygon(DeviceContext& context, const MetafileRecord& record) {
  DrawPolygons(context, {ReadPoints(context, record, 1, record.Word(0))});
}

void PlayPolyline(DeviceContext& context, const MetafileRecord& record) {
  Stroke(context, ReadPoints(context, record, 1, record.Word(0)), LineShape::Open);
}

void PlayPolyPolygon(DeviceContext& context, const MetafileRecord& record) {
  const int count = record.Word(0);
  qsizetype at = 1 + count;
  std::vector<std::vector<QPoint>> shapes;
  for (qsizetype i = 0; i < count && at < record.Words(); ++i) {
    const int points = record.Word(1 + i);
    shapes.push_back(ReadPoints(context, record, at, points));
    at += qsizetype{2} * points;
  }
  DrawPolygons(context, shapes);
}

void PlayRectangle(DeviceContext& context, const MetafileRecord& record) {
  DrawRectangle(context, BoxOf(context, record, 0));
}

void PlayEllipse(DeviceContext& context, const MetafileRecord& record) {
  const QRect box = BoxOf(context, record, 0);
  DrawRound(context, box, box.size());
}

void PlayRoundRect(DeviceContext& context, const MetafileRecord& record) {
  const QSize corner = context.ToDevice(0, 0, record.Int(1), record.Int(0)).size();
  DrawRound(context, BoxOf(context, record, 2), corner);
}

void PlayArc(DeviceContext& context, const MetafileRecord& record) {
  DrawArc(context, record, ArcKind::Open);
}

void PlayChord(DeviceContext& context, const MetafileRecord& record) {
  DrawArc(context, record, ArcKind::Chord);
}

void PlayPie(DeviceContext& context, const MetafileRecord& record) {
  DrawArc(context, record, ArcKind::Pie);
}

void PlayFloodFill(DeviceContext& context, const MetafileRecord& record) {
  DrawFlood(context, record, 0, forms::FloodStops::AtColour);
}

void PlayExtFloodFill(DeviceContext& context, const MetafileRecord& record) {
  const bool toBorder = record.Word(0) == FloodToBorder;
  DrawFlood(context, record, 1,
            toBorder ? forms::FloodStops::AtColour : forms::FloodStops::AtOtherColours);
}

void PlaySetPixel(DeviceContext& context, const MetafileRecord& record) {
  const QPoint at = context.ToDevice(QPointF(record.PointYX(2)));
  const QRgb colour = context.Resolve(record.Long(0));
  if (context.Target().BeginShape(QRect(at, QSize(1, 1)))) context.Target().WritePixel(at, colour);
}

}  // namespace terramark::metafile
