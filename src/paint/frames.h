// Frames, bevels and focus rings. Their lines are whole pixels of the device, equally thick on all
// sides at any scale of the screen or the painter; lines of a QPen would differ or disappear, since
// they begin and end between the pixels of a scaled device.
#pragma once

#include <QColor>

class QPainter;
class QRect;

namespace terramark::paint {

/// Draws one line along the inside of the area's edges. Its thickness is the painter's scale in
/// device pixels, at least one. The painter must not be rotated.
void DrawFrame(QPainter& painter, const QRect& area, const QColor& colour);

/// Two lines, one inside the other, each with one colour at the top and left and one at the bottom
/// and right.
struct Bevel {
  QColor OuterLit;
  QColor OuterShade;
  QColor InnerLit;
  QColor InnerShade;
};
void DrawBevel(QPainter& painter, const QRect& area, const Bevel& bevel);

/// Draws a line as DrawFrame does, with alternating black and white dashes, so that it is visible
/// on every colour.
void DrawFocusRing(QPainter& painter, const QRect& area);

}  // namespace terramark::paint
