#include "window/frameview.h"

#include <QPainter>

#include "paint/elidedtext.h"
#include "paint/frames.h"
#include "paint/lettering.h"
#include "paint/screencolour.h"

namespace terramark::window {

namespace {
constexpr int CaptionLeft = 8;
constexpr int CaptionPadding = 2;
}  // namespace

FrameView::FrameView(forms::Frame& frame, QWidget& container)
    : QGroupBox(&container), ControlView(frame, *this), frame_(frame) {
  ShowOwn(forms::PropertyId::Caption);
}

void FrameView::ShowOwn(forms::PropertyId id) {
  if (id == forms::PropertyId::Caption)
    setTitle(paint::ElidedText(frame_.Caption).replace('&', "&&"));
  update();
}

void FrameView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor face = paint::ScreenColour(frame_.BackColor);
  const QFontMetrics metrics = painter.fontMetrics();
  painter.fillRect(rect(), face);
  const QColor dark = palette().color(QPalette::Dark);
  const QColor light = palette().color(QPalette::Light);
  paint::DrawBevel(painter, rect().adjusted(0, metrics.height() / 2, 0, 0),
                   {dark, light, light, dark});
  const QString caption = paint::ElidedText(frame_.Caption);
  if (caption.isEmpty()) return;
  const int width = metrics.horizontalAdvance(caption) + 2 * CaptionPadding;
  const QRect place(CaptionLeft, 0, qMin(width, this->width() - 2 * CaptionLeft), metrics.height());
  painter.fillRect(place, face);
  painter.setPen(palette().color(QPalette::WindowText));
  paint::DrawCaption(painter, place, caption, Qt::ElideRight);
}

}  // namespace terramark::window
