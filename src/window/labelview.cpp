#include "window/labelview.h"

#include <QPainter>

#include "window/accessiblenames.h"
#include "window/frames.h"
#include "window/look.h"
#include "window/showntext.h"

namespace terramark::window {

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
  const QString caption = ShownText(label.Caption, Qt::ElideMiddle);
  if (label.Alignment == forms::Alignment::Centred) {
    DrawCaption(painter, inside, caption, Qt::ElideMiddle);
  } else {
    painter.drawText(inside, Qt::AlignVCenter | Qt::TextSingleLine, caption);
  }
}

LabelView::LabelView(forms::Label& label, QWidget& container)
    : QLabel(&container), ControlView(label, *this), label_(label) {
  setTextFormat(Qt::PlainText);
  ShowOwn(forms::PropertyId::Caption);
}

void LabelView::ShowOwn(forms::PropertyId id) {
  // Only assistive tools read the text from here.
  if (id == forms::PropertyId::Caption) {
    setText(ShownText(label_.Caption, Qt::ElideMiddle));
    const bool tells =
        label_.Announcement == forms::Announcement::AsName && !label_.AccessibleName.empty();
    if (tells) setAccessibleName(AccessibleText(label_));
  }
  update();
}

void LabelView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  DrawLabel(painter, rect(), label_);
}

}  // namespace terramark::window
