#include "window/memoview.h"

#include "window/cp1252.h"
#include "window/look.h"

namespace terramark::window {

MemoView::MemoView(forms::TextBox& box, QWidget& container)
    : QPlainTextEdit(&container), ControlView(box, *this), box_(box) {
  setReadOnly(true);
  setTabChangesFocus(true);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  ShowOwn(forms::PropertyId::Text);
}

void MemoView::ShowOwn(forms::PropertyId id) {
  if (id == forms::PropertyId::Text) setPlainText(FromCp1252(box_.Text));
  QPalette colours = palette();
  colours.setColor(QPalette::Base, ScreenColour(box_.BackColor));
  colours.setColor(QPalette::Text, ScreenColour(box_.ForeColor));
  setPalette(colours);
}

}  // namespace terramark::window
