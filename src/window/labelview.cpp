#include "window/labelview.h"

#include <QPainter>

#include "paint/elidedtext.h"
#include "paint/labelpaint.h"
#include "window/accessiblenames.h"

namespace terramark::window {

LabelView::LabelView(forms::Label& label, QWidget& container)
    : QLabel(&container), ControlView(label, *this), label_(label) {
  setTextFormat(Qt::PlainText);
  ShowOwn(forms::PropertyId::Caption);
}

void LabelView::ShowOwn(forms::PropertyId id) {
  // Only assistive tools read the widget's text.
  if (id == forms::PropertyId::Caption) {
    setText(paint::ElidedText(label_.Caption, Qt::ElideMiddle));
    const bool tells =
        label_.Announcement == forms::Announcement::AsName && !label_.AccessibleName.empty();
    if (tells) setAccessibleName(AccessibleText(label_));
  }
  update();
}

void LabelView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  paint::DrawLabel(painter, rect(), label_);
}

}  // namespace terramark::window
