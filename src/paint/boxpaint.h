// What stands on a picture box, as large as it is shown: its image, labels and rings.
#pragma once

#include <QRect>

#include "forms/controls.h"
#include "forms/picturebox.h"

class QPainter;

namespace terramark::paint {

/// Pixels by which a ring goes beyond what it is around.
inline constexpr int RingWidth = 3;

/// Paints a part of the box, in its pixels, each of which shows the nearest pixel of the box's
/// image. Beside the image the box has its own colour.
void PaintImage(QPainter& painter, const forms::PictureBox& box, const QRect& part);

/// Hands over each label that is to be seen on the box, the lowest first.
template <typename Visitor>
void ForEachLabel(const forms::PictureBox& box, Visitor visit) {
  for (const forms::Control* child : box.Children()) {
    if (!child->Visible || child->Kind() != forms::ControlKind::Label) continue;
    visit(static_cast<const forms::Label&>(*child));
  }
}

/// Paints a label into the area that it covers at a scale; its letters are drawn in that size.
/// Leaves the painter without a transform.
void PaintLabel(QPainter& painter, const QRect& area, double scale, const forms::Label& label);

/// Paints a ring around an area, which shows on every colour.
void PaintRing(QPainter& painter, const QRect& area);

}  // namespace terramark::paint
