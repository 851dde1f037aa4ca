#include "window/memoview.h"

#include <QEvent>
#include <QPainter>

#include "paint/cp1252.h"
#include "paint/frames.h"
#include "paint/screencolour.h"

namespace terramark::window {

namespace {
constexpr int BorderDarkness = 129;  // percent of the ground's darkness
}

MemoView::MemoView(forms::TextBox& box, QWidget& container)
    : QPlainTextEdit(&container), ControlView(box, *this), box_(box) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setTabChangesFocus(true);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  ShowOwn(forms::PropertyId::Text);
}

void MemoView::ShowOwn(forms::PropertyId id) {
  if (id == forms::PropertyId::Text) setPlainText(paint::FromCp1252(box_.Text));
  QPalette colours = palette();
  colours.setColor(QPalette::Base, paint::ScreenColour(box_.BackColor));
  colours.setColor(QPalette::Text, paint::ScreenColour(box_.ForeColor));
  setPalette(colours);
}

bool MemoView::event(QEvent* event) {
  const bool done = QPlainTextEdit::event(event);
  if (event->type() == QEvent::Paint) {
    QPainter painter(this);
    paint::DrawFrame(painter, rect(), palette().color(QPalette::Window).darker(BorderDarkness));
  }
  return done;
}

}  // namespace terramark::window
