// Frames, bevels and focus rings whose lines are whole pixels of the device, as thick on every side
// at any scale of the screen or the painter. A pen's lines, which begin and end between the pixels
// of a scaled device, come out thicker on one side or not at all.
#pragma once

#include <QColor>

class QPainter;
class QRect;

namespace terramark::paint {

/// Draws one line along the inside of the area's edges: as many pixels of the device thick as the
/// painter's scale comes to, and one at the least. A turned painter is not for these.
void DrawFrame(QPainter& painter, const QRect& area, const QColor& colour);

/// Two lines, one within the other, each with a colour above and on the left, and another below and
/// on the right.
struct Bevel {
  QColor OuterLit;
  QColor OuterShade;
  QColor InnerLit;
  QColor InnerShade;
};
void DrawBevel(QPainter& painter, const QRect& area, const Bevel& bevel);

/// Draws a line as DrawFrame does, in black and white by turns, so that it shows on every colour.
void DrawFocusRing(QPainter& painter, const QRect& area);

}  // namespace terramark::paint
