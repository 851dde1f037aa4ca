// Converts shapes to rows of pixels by the classic rules: a pixel is at its whole-number
// coordinate, and a shape covers its left and top edges but not its right and bottom ones.
#pragma once

#include <QPolygonF>
#include <QRect>
#include <cstdint>
#include <functional>
#include <vector>

namespace terramark::metafile {

/// Receives the pixels x0 <= x < x1 of row y.
using SpanSink = std::function<void(int y, int x0, int x1)>;

/// Which parts of overlapping polygons are inside: every other one from the outside, or all.
enum class FillRule { Alternate, Winding };

// All coordinates are pixels.

/// The number of rows of `area` that the polygons' edges cross, summed: most of the work of
/// ScanPolygons, which takes eight bytes for each.
std::int64_t PolygonCrossings(const std::vector<QPolygonF>& polygons, const QRect& area);

/// The inside of the polygons, each of which is closed. Only pixels inside `area` are reported, and
/// each once.
void ScanPolygons(const std::vector<QPolygonF>& polygons, FillRule rule, const QRect& area,
                  const SpanSink& sink);

/// The pixels of a line one pixel wide, without its last one. Calls `plot` for those inside `area`,
/// with the number of each along the whole line.
void ScanLine(QPoint from, QPoint to, const QRect& area,
              const std::function<void(QPoint pixel, std::int64_t step)>& plot);

/// The outline of the ellipse that touches all edges of a box of width x height pixels: the points
/// of its lower right quarter, from the right end of the middle to the bottom. Width and height are
/// at least 1; it takes width + height steps.
std::vector<QPoint> EllipseQuarter(int width, int height);

}  // namespace terramark::metafile
