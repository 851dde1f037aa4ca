#include "window/barview.h"

#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QToolTip>

#include "paint/frames.h"

namespace terramark::window {

namespace {
/// How many values a press beside the thumb, or a page key, moves.
constexpr int PageStep = 16;
constexpr int TipDrop = 16;  // pixels
constexpr int TipMilliseconds = 3000;
}  // namespace

BarView::BarView(forms::VScrollBar& bar, QWidget& container)
    : QScrollBar(Qt::Vertical, &container), ControlView(bar, *this), bar_(bar) {
  setFocusPolicy(Qt::StrongFocus);
  setTracking(false);
  setPageStep(PageStep);
  setRange(bar.Min, bar.Max);
  setValue(bar.Value);
  connect(this, &QScrollBar::valueChanged, this, [this](int value) {
    bar_.Moved(value);
    ShowOwn(forms::PropertyId::Value);
    ShowValueTip();
  });
  connect(this, &QScrollBar::sliderMoved, this, &BarView::ShowValueTip);
}

void BarView::ShowOwn(forms::PropertyId /*id*/) {
  const QSignalBlocker still(this);
  setValue(bar_.Value);
}

QRect BarView::Thumb() const {
  QStyleOptionSlider option;
  initStyleOption(&option);
  return style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
}

void BarView::ShowValueTip() {
  // Right of all bars in the frame, so that the tip hides none of them. Qt shows a tip TipDrop
  // pixels below the place it is given.
  const QPoint beside(parentWidget()->width() - x(), Thumb().top() - TipDrop);
  const QString tip = QString("%1: %2").arg(toolTip()).arg(sliderPosition());
  QToolTip::showText(mapToGlobal(beside), tip, this, {}, TipMilliseconds);
}

/// Qt takes Left for more and Right for less on a vertical bar.
void BarView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Right:
      return triggerAction(SliderSingleStepAdd);
    case Qt::Key_Left:
      return triggerAction(SliderSingleStepSub);
    default:
      QScrollBar::keyPressEvent(event);
  }
}

void BarView::paintEvent(QPaintEvent* event) {
  QScrollBar::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  paint::DrawFocusRing(painter, Thumb().adjusted(2, 2, -2, -2));
}

}  // namespace terramark::window
