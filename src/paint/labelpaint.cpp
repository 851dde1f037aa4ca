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
    // A black border would be invisible on a black label.
    const bool dark = ScreenColour(label.BackColor).lightness() < DarkLightness;
    DrawFrame(painter, area, dark ? Qt::gray : Qt::black);
    inside.adjust(1, 1, -1, -1);
  }
  painter.setPen(ScreenColour(label.ForeColor));
  // In a message with a long name, the words before and after the name matter.
  const QString caption = ElidedText(label.Caption, Qt::ElideMiddle);
  if (label.Alignment == forms::Alignment::Centred) {
    DrawCaption(painter, inside, caption, Qt::ElideMiddle);
  } else {
    painter.drawText(inside, Qt::AlignVCenter | Qt::TextSingleLine, caption);
  }
}

}  // namespace terramark::paint
