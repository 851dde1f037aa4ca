#include "metafile/scanconvert.h"

#include <QPoint>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <span>

namespace terramark::metafile {
namespace {

/// Where an edge crosses a row: the first pixel to the right of the edge.
struct Crossing {
  int X;
  int Direction;
};

int ClampedCeil(double value, int low, int high) {
  if (!(value > low)) return low;
  if (value >= high) return high;
  return static_cast<int>(std::ceil(value));
}

struct RowRange {
  int First;
  int Last;  // one past
};

RowRange RowsOf(double y0, double y1, const QRect& area) {
  const int end = area.bottom() + 1;
  return {ClampedCeil(std::min(y0, y1), area.top(), end),
          ClampedCeil(std::max(y0, y1), area.top(), end)};
}

template <typename Visit>
void ForEachEdge(const std::vector<QPolygonF>& polygons, const Visit& visit) {
  for (const QPolygonF& polygon : polygons) {
    for (qsizetype i = 0; i < polygon.size(); ++i) {
      visit(polygon[i], polygon[i + 1 == polygon.size() ? 0 : i + 1]);
    }
  }
}

/// The edges' crossings with the rows of an area, row after row in one block of memory.
class CrossingRows {
 public:
  CrossingRows(const std::vector<QPolygonF>& polygons, const QRect& area)
      : top_(area.top()), ends_(static_cast<std::size_t>(area.height()) + 1) {
    ForEachEdge(polygons, [&](QPointF a, QPointF b) {
      const RowRange rows = RowsOf(a.y(), b.y(), area);
      for (int y = rows.First; y < rows.Last; ++y) ++ends_[Number(y) + 1];
    });
    std::partial_sum(ends_.begin(), ends_.end(), ends_.begin());
    crossings_.resize(ends_.back());
    // From here on an entry is the index for the row's next crossing, and finally the end of the
    // row.
    ends_.pop_back();
    const int right = area.right() + 1;
    ForEachEdge(polygons, [&](QPointF a, QPointF b) {
      const RowRange rows = RowsOf(a.y(), b.y(), area);
      const int direction = a.y() < b.y() ? 1 : -1;
      if (direction < 0) std::swap(a, b);
      for (int y = rows.First; y < rows.Last; ++y) {
        const double x = a.x() + (y - a.y()) * (b.x() - a.x()) / (b.y() - a.y());
        crossings_[ends_[Number(y)]++] = {ClampedCeil(x, area.left(), right), direction};
      }
    });
  }

  std::span<const Crossing> Sorted(int y) {
    const std::size_t row = Number(y);
    const std::size_t begin = row == 0 ? 0 : ends_[row - 1];
    const std::span<Crossing> crossings = std::span(crossings_).subspan(begin, ends_[row] - begin);
    std::sort(crossings.begin(), crossings.end(),
              [](const Crossing& a, const Crossing& b) { return a.X < b.X; });
    return crossings;
  }

 private:
  std::size_t Number(int y) const { return static_cast<std::size_t>(y - top_); }

  int top_;
  std::vector<std::size_t> ends_;
  std::vector<Crossing> crossings_;
};

std::int64_t CeilDiv(std::int64_t value, std::int64_t divisor) {
  return value >= 0 ? (value + divisor - 1) / divisor : -(-value / divisor);
}

/// Whether the line takes the farther of two pixels when it passes exactly between them; this
/// depends on its direction.
bool TieStepsOn(std::int64_t dx, std::int64_t dy) {
  const bool xMajor = std::abs(dx) > std::abs(dy);
  if (dy > 0) return dx > 0 ? false : !xMajor;
  return dx < 0 ? true : xMajor;
}

}  // namespace

std::int64_t PolygonCrossings(const std::vector<QPolygonF>& polygons, const QRect& area) {
  std::int64_t total = 0;
  ForEachEdge(polygons, [&](QPointF a, QPointF b) {
    const RowRange rows = RowsOf(a.y(), b.y(), area);
    total += rows.Last - rows.First;
  });
  return total;
}

void ScanPolygons(const std::vector<QPolygonF>& polygons, FillRule rule, const QRect& area,
                  const SpanSink& sink) {
  if (area.isEmpty()) return;
  const bool winding = rule == FillRule::Winding;
  CrossingRows rows(polygons, area);
  for (int y = area.top(); y <= area.bottom(); ++y) {
    const std::span<const Crossing> row = rows.Sorted(y);
    int depth = 0;
    for (std::size_t i = 0; i + 1 < row.size(); ++i) {
      depth += winding ? row[i].Direction : 1;
      const bool inside = winding ? depth != 0 : depth % 2 != 0;
      if (inside && row[i].X < row[i + 1].X) sink(y, row[i].X, row[i + 1].X);
    }
  }
}

void ScanLine(QPoint from, QPoint to, const QRect& area,
              const std::function<void(QPoint, std::int64_t)>& plot) {
  const std::int64_t dx = std::int64_t{to.x()} - from.x();
  const std::int64_t dy = std::int64_t{to.y()} - from.y();
  const bool xMajor = std::abs(dx) > std::abs(dy);
  const std::int64_t major = xMajor ? std::abs(dx) : std::abs(dy);
  const std::int64_t minor = xMajor ? std::abs(dy) : std::abs(dx);
  const std::int64_t tie = TieStepsOn(dx, dy) ? 1 : 0;
  const std::int64_t start = xMajor ? from.x() : from.y();
  const std::int64_t low = xMajor ? area.left() : area.top();
  const std::int64_t high = xMajor ? area.right() : area.bottom();
  const bool forward = (xMajor ? dx : dy) > 0;

  // Of a line that extends far beyond the area only the steps inside are computed.
  std::int64_t first = std::max<std::int64_t>(0, forward ? low - start : start - high);
  const std::int64_t last = std::min(major - 1, forward ? high - start : start - low);
  for (; first <= last; ++first) {
    const std::int64_t across =
        std::max<std::int64_t>(0, CeilDiv(2 * minor * first - major + tie, 2 * major));
    const std::int64_t x = xMajor ? first : across;
    const std::int64_t y = xMajor ? across : first;
    const QPoint pixel(static_cast<int>(from.x() + (dx < 0 ? -x : x)),
                       static_cast<int>(from.y() + (dy < 0 ? -y : y)));
    if (area.contains(pixel)) plot(pixel, first);
  }
}

std::vector<QPoint> EllipseQuarter(int width, int height) {
  // The ellipse-in-a-rectangle variant of the midpoint algorithm, after A. Zingl.
  const double a = width - 1;
  const double b = height - 1;
  const double odd = (height - 1) % 2;
  double stepX = 4 * b * b * (1 - a);
  double stepY = 4 * a * a * (1 + odd);
  double error = stepX + stepY + a * a * odd;
  std::vector<QPoint> points;
  QPoint at(width - 1, height / 2);
  while (at.x() >= width / 2) {
    points.push_back(at);
    const double twice = 2 * error;
    if (twice >= stepX) {
      at.rx() -= 1;
      stepX += 8 * b * b;
      error += stepX;
    }
    if (twice <= stepY) {
      at.ry() += 1;
      stepY += 8 * a * a;
      error += stepY;
    }
    if (at.y() > height - 1) break;
  }
  while (!points.empty() && points.back().y() < height - 1) {
    points.push_back({points.back().x(), points.back().y() + 1});
  }
  return points;
}

}  // namespace terramark::metafile
