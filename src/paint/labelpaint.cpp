#include "paint/labelpaint.h"

#include <QPainter>

#include "paint/elidedtext.h"
#include "paint/frames.h"
#include "paint/lettering.h"
#include "paint/screencolour.h"

namespace terramark::paint {

namespace {
constexpr int DarkLightness = 64;  // of 255
}

void DrawLabel(QPainter& painter, const QRect& area, const forms::Label& label) {
  painter.fillRect(area, ScreenColour(label.BackColor));
  QRect inside = area;
  if (label.BorderStyle == forms::Border::FixedSingle) {
    // On a black label a black border would not show.
    const bool dark = ScreenColour(label.BackColor).lightness() < DarkLightness;
    DrawFrame(painter, area, dark ? Qt::gray : Qt::black);
    inside.adjust(1, 1, -1, -1);
  }
  painter.setPen(ScreenColour(label.ForeColor));
  // What is said of a long name stands before and behind it.
  const QString caption = ElidedText(label.Caption, Qt::ElideMiddle);
  if (label.Alignment == forms::Alignment::Centred) {
    DrawCaption(painter, inside, caption, Qt::ElideMiddle);
  } else {
    painter.drawText(inside, Qt::AlignVCenter | Qt::TextSingleLine, caption);
  }
}

}  // namespace terramark::paint
