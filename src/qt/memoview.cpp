#include "qt/memoview.h"

#include "qt/cp1252.h"
#include "qt/look.h"

namespace terramark::qt {

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

}  // namespace terramark::qt
