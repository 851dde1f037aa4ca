#include "window/zoomlabel.h"

#include <QPalette>

namespace terramark::window {

namespace {
constexpr int GapToEdge = 4;  // pixels
}

ZoomLabel::ZoomLabel(QWidget& box) : QLabel(&box) {
  setObjectName("Zoom");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  setMargin(2);
}

void ZoomLabel::ShowZoom(forms::Magnification zoom, const QRect& view) {
  // The smallest, 3.125, has four digits.
  const QString now = QString("%1 %").arg(100.0 * zoom.Screen / zoom.Picture, 0, 'g', 4);
  if (now != text()) {
    setText(now);
    setAccessibleName("Zoom " + now);
    adjustSize();
  }
  move(view.right() + 1 - width() - GapToEdge, view.bottom() + 1 - height() - GapToEdge);
  setVisible(zoom != forms::ActualSize);
}

}  // namespace terramark::window
