// Draws what is on a picture box, at the size at which it is shown: image, labels and rings.
#pragma once

#include <QRect>

#include "forms/controls.h"
#include "forms/picturebox.h"
#include "paint/blackblocks.h"

class QPainter;

namespace terramark::paint {

/// How many pixels a ring extends beyond the area that it surrounds.
inline constexpr int RingWidth = 3;

/// Paints a part of the box, in pixels of the box. Each pixel shows the nearest pixel of the box's
/// image, with its paint; beyond the image the box's own colour. Below actual size it is black
/// where any pixel of its block is, by `black`, which belongs to the box's picture. May reset the
/// painter's transform.
void PaintImage(QPainter& painter, const forms::PictureBox& box, const BlackBlocks& black,
                const QRect& part);

/// Calls the visitor with each visible label on the box, from the back to the front.
template <typename Visitor>
void ForEachLabel(const forms::PictureBox& box, Visitor visit) {
  for (const forms::Control* child : box.Children()) {
    if (!child->Visible || child->Kind() != forms::ControlKind::Label) continue;
    visit(static_cast<const forms::Label&>(*child));
  }
}

/// Paints a label into the area that it covers at a scale, with its letters in that size. Resets
/// the painter's transform.
void PaintLabel(QPainter& painter, const QRect& area, double scale, const forms::Label& label);

/// Paints a ring around an area; it is visible on every colour.
void PaintRing(QPainter& painter, const QRect& area);

}  // namespace terramark::paint
