#include "window/scrollfeed.h"

#include <QFocusEvent>

#include "window/canvasview.h"

namespace terramark::window {

namespace {

constexpr char KeepsWheel[] = "keepsWheel";

bool UsesWheel(const forms::Control& control) {
  switch (control.Kind()) {
    case forms::ControlKind::PictureBox:
    case forms::ControlKind::VScrollBar:
      return true;
    case forms::ControlKind::TextBox:
      return static_cast<const forms::TextBox&>(control).MultiLine;
    default:
      return false;
  }
}

}  // namespace

ScrollFeed::ScrollFeed(QWidget& inside, PointerFeed& pointer) : inside_(inside), pointer_(pointer) {
  inside.installEventFilter(this);
  pointer.OnRelease = [this] { RevealPending(); };
}

void ScrollFeed::Watch(ControlView& view) {
  view.Widget().setProperty(KeepsWheel, UsesWheel(view.Shown()));
  view.Widget().installEventFilter(this);
}

bool ScrollFeed::eventFilter(QObject* watched, QEvent* event) {
  auto& widget = *static_cast<QWidget*>(watched);
  switch (event->type()) {
    case QEvent::FocusIn:
      GotFocus(widget, static_cast<QFocusEvent*>(event)->reason());
      return false;
    case QEvent::KeyRelease:
      RevealCursorItem(widget);
      return false;
    case QEvent::Wheel:
      if (!OnWheel || widget.property(KeepsWheel).toBool()) return false;
      if (!pointer_.HoldsButton()) OnWheel(*static_cast<QWheelEvent*>(event));
      return true;
    default:
      return false;
  }
}

/// What is under a pressed button must stay there until it is released.
void ScrollFeed::GotFocus(QWidget& widget, Qt::FocusReason reason) {
  if (&widget == &inside_) return;
  // After a dialog or a menu the keyboard mostly comes back to where it was.
  const bool back = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
  if (back && lastFocus_ == &widget) return;
  lastFocus_ = &widget;
  pendingFocus_ = &widget;
  if (reason != Qt::MouseFocusReason) RevealPending();
}

void ScrollFeed::RevealPending() {
  if (!pendingFocus_ || pointer_.HoldsButton()) return;
  const QWidget& widget = *pendingFocus_;
  pendingFocus_.clear();
  if (widget.hasFocus()) Reveal(widget, widget.rect());
}

void ScrollFeed::RevealCursorItem(const QWidget& widget) const {
  const auto* canvas = dynamic_cast<const CanvasView*>(&widget);
  if (canvas == nullptr || pointer_.HoldsButton()) return;
  const forms::Control* const item = canvas->VisibleCursorItem();
  if (item != nullptr) Reveal(widget, canvas->WidgetRectOf(*item) & canvas->Viewport());
}

void ScrollFeed::Reveal(const QWidget& widget, const QRect& part) const {
  if (OnReveal && !part.isEmpty()) OnReveal(part.translated(widget.mapTo(&inside_, QPoint())));
}

}  // namespace terramark::window
