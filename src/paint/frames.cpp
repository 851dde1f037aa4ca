#include "paint/frames.h"

#include <QPainter>
#include <QRect>
#include <QTransform>
#include <algorithm>

#include "paint/devicepixels.h"

namespace terramark::paint {

namespace {

constexpr int Dash = 2;  // lines thick

/// Paints lines along an area's edges, in pixels of the device.
class Edges {
 public:
  Edges(QPainter& painter, const QRect& area)
      : painter_(painter),
        toDevice_(painter.deviceTransform()),
        fromDevice_(toDevice_.inverted()),
        area_(MapToDevice(toDevice_, area)),
        thick_(std::max(1, qRound(toDevice_.m11()))) {}

  /// Paints one line; the next line is inside it. Two of the corners have the colour `shade`. No
  /// pixel is painted twice, which would be visible with a transparent colour.
  void Line(const QColor& lit, const QColor& shade) {
    const QRect in = area_.adjusted(thick_, thick_, -thick_, -thick_);
    Fill({area_.left(), area_.top(), area_.width() - thick_, thick_}, lit);
    Fill({area_.left(), in.top(), thick_, in.height()}, lit);
    Fill({area_.left(), in.bottom() + 1, area_.width(), thick_}, shade);
    Fill({in.right() + 1, area_.top(), thick_, area_.height() - thick_}, shade);
    area_ = in;
  }

  /// Paints every other dash of a line, beginning at the top and at the left corners.
  void Dashes(const QColor& colour) {
    const int dash = Dash * thick_;
    for (int x = 0; x < area_.width(); x += 2 * dash) {
      const int width = std::min(dash, area_.width() - x);
      Fill({area_.left() + x, area_.top(), width, thick_}, colour);
      Fill({area_.left() + x, area_.bottom() + 1 - thick_, width, thick_}, colour);
    }
    for (int y = 0; y < area_.height(); y += 2 * dash) {
      const int height = std::min(dash, area_.height() - y);
      Fill({area_.left(), area_.top() + y, thick_, height}, colour);
      Fill({area_.right() + 1 - thick_, area_.top() + y, thick_, height}, colour);
    }
  }

 private:
  void Fill(const QRect& pixels, const QColor& colour) {
    const QRect inside = pixels & area_;
    if (!inside.isEmpty()) painter_.fillRect(fromDevice_.mapRect(QRectF(inside)), colour);
  }

  QPainter& painter_;
  const QTransform toDevice_;
  const QTransform fromDevice_;
  QRect area_;
  const int thick_;
};

}  // namespace

void DrawFrame(QPainter& painter, const QRect& area, const QColor& colour) {
  Edges(painter, area).Line(colour, colour);
}

void DrawBevel(QPainter& painter, const QRect& area, const Bevel& bevel) {
  Edges edges(painter, area);
  edges.Line(bevel.OuterLit, bevel.OuterShade);
  edges.Line(bevel.InnerLit, bevel.InnerShade);
}

void DrawFocusRing(QPainter& painter, const QRect& area) {
  DrawFrame(painter, area, Qt::white);
  Edges(painter, area).Dashes(Qt::black);
}

}  // namespace terramark::paint
