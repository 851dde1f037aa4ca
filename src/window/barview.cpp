#include "window/barview.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSlider>

namespace terramark::window {

namespace {
/// Values that a press beside the thumb, and a page key, go on.
constexpr int Page = 16;
}  // namespace

BarView::BarView(forms::VScrollBar& bar, QWidget& container)
    : QScrollBar(Qt::Vertical, &container), ControlView(bar, *this), bar_(bar) {
  setFocusPolicy(Qt::StrongFocus);
  setTracking(false);
  setPageStep(Page);
  setRange(bar.Min, bar.Max);
  setValue(bar.Value);
  connect(this, &QScrollBar::valueChanged, this, [this](int value) {
    bar_.Moved(value);
    ShowOwn(forms::PropertyId::Value);
  });
}

void BarView::ShowOwn(forms::PropertyId /*id*/) {
  const QSignalBlocker still(this);
  setValue(bar_.Value);
}

void BarView::paintEvent(QPaintEvent* event) {
  QScrollBar::paintEvent(event);
  if (!hasFocus()) return;
  QStyleOptionSlider option;
  initStyleOption(&option);
  const QRect thumb =
      style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
  QPainter painter(this);
  painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
  painter.drawRect(thumb.adjusted(2, 2, -3, -3));
}

}  // namespace terramark::window
