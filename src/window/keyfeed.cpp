#include "window/keyfeed.h"

namespace terramark::window {

namespace {

std::int16_t CodeOf(int key) {
  switch (key) {
    case Qt::Key_Up:
      return forms::KeyUpArrow;
    case Qt::Key_Down:
      return forms::KeyDownArrow;
    default:
      return 0;
  }
}

forms::KeyEvent EventOf(const QKeyEvent& key) {
  return {CodeOf(key.key()), KeyMask(key.modifiers())};
}

/// Whether keys go to the widget, or to it as the window when no widget in it has the focus.
bool HasFocus(const QObject& watched) {
  const auto& widget = static_cast<const QWidget&>(watched);
  const QWidget* window = widget.window();
  return &widget == (window->focusWidget() != nullptr ? window->focusWidget() : window);
}

}  // namespace

std::int16_t KeyMask(Qt::KeyboardModifiers modifiers) {
  const int mask = (modifiers.testFlag(Qt::ShiftModifier) ? forms::ShiftKey : 0) |
                   (modifiers.testFlag(Qt::ControlModifier) ? forms::CtrlKey : 0) |
                   (modifiers.testFlag(Qt::AltModifier) ? forms::AltKey : 0);
  return static_cast<std::int16_t>(mask);
}

void KeyFeed::Watch(QWidget& widget, forms::Control* control) {
  controls_[&widget] = control;
  widget.installEventFilter(this);
}

bool KeyFeed::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::FocusIn:
      form_.Focus(controls_.at(watched));
      return false;
    case QEvent::KeyPress: {
      const auto& key = *static_cast<QKeyEvent*>(event);
      return Hears(*watched, key) && Pressed(key);
    }
    case QEvent::KeyRelease: {
      const auto& key = *static_cast<QKeyEvent*>(event);
      if (Hears(*watched, key)) Released(key);
      return false;
    }
    default:
      return false;
  }
}

/// Once, on the key's way up from the widget that has the focus, which it may lose over the key.
bool KeyFeed::Hears(const QObject& watched, const QKeyEvent& key) {
  const Stamp stamp{&key, key.type(), key.timestamp()};
  const bool onItsWay = controls_.at(&watched) == nullptr && stamp == heard_;
  if (onItsWay || !HasFocus(watched)) return false;
  heard_ = stamp;
  return true;
}

bool KeyFeed::Pressed(const QKeyEvent& key) {
  if (key.key() == Qt::Key_Escape && form_.Pointer.InFlight()) {
    form_.Pointer.CancelDrag();
    return true;
  }
  form_.KeyPressed(EventOf(key));
  if (!key.text().isEmpty()) form_.CharacterTyped();
  return false;
}

void KeyFeed::Released(const QKeyEvent& key) {
  if (!key.isAutoRepeat()) form_.KeyReleased(EventOf(key));
}

}  // namespace terramark::window
