#include "window/keyfeed.h"

#include <algorithm>
#include <iterator>

namespace terramark::window {

namespace {

struct KeyRow {
  Qt::Key Key;
  std::int16_t Code;
};
constexpr KeyRow Keys[] = {
    {Qt::Key_Return, forms::KeyReturn},
    {Qt::Key_Enter, forms::KeyReturn},
    {Qt::Key_Escape, forms::KeyEscape},
    {Qt::Key_Space, forms::KeySpace},
    {Qt::Key_PageUp, forms::KeyPageUp},
    {Qt::Key_PageDown, forms::KeyPageDown},
    {Qt::Key_End, forms::KeyEnd},
    {Qt::Key_Home, forms::KeyHome},
    {Qt::Key_Left, forms::KeyLeftArrow},
    {Qt::Key_Up, forms::KeyUpArrow},
    {Qt::Key_Right, forms::KeyRightArrow},
    {Qt::Key_Down, forms::KeyDownArrow},
    {Qt::Key_0, forms::Key0},
    {Qt::Key_C, forms::KeyC},
    {Qt::Key_Menu, forms::KeyMenu},
    {Qt::Key_F1, forms::KeyF1},
    {Qt::Key_F6, forms::KeyF6},
    {Qt::Key_Plus, forms::KeyPlus},
    {Qt::Key_Equal, forms::KeyPlus},  // plus is on it, with the Shift key
    {Qt::Key_Minus, forms::KeyMinus},
};

forms::KeyEvent EventOf(const QKeyEvent& key) {
  const auto* const row = std::ranges::find(Keys, key.key(), &KeyRow::Key);
  const std::int16_t code = row == std::end(Keys) ? std::int16_t{0} : row->Code;
  return {code, KeyMask(key.modifiers()), key.isAutoRepeat()};
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
      return Accepts(*watched, key) && Pressed(key);
    }
    case QEvent::KeyRelease: {
      const auto& key = *static_cast<QKeyEvent*>(event);
      if (Accepts(*watched, key)) Released(key);
      return false;
    }
    default:
      return false;
  }
}

/// Once, on the key's way up from the widget that has the focus, which it may lose over the key.
bool KeyFeed::Accepts(const QObject& watched, const QKeyEvent& key) {
  const Stamp stamp{&key, key.type(), key.timestamp()};
  const bool onItsWay = controls_.at(&watched) == nullptr && stamp == lastKey_;
  if (onItsWay || !HasFocus(watched)) return false;
  lastKey_ = stamp;
  return true;
}

bool KeyFeed::Pressed(const QKeyEvent& key) {
  if (form_.KeyPressed(EventOf(key))) return true;
  if (!key.text().isEmpty()) form_.CharacterTyped();
  return false;
}

void KeyFeed::Released(const QKeyEvent& key) {
  if (!key.isAutoRepeat()) form_.KeyReleased(EventOf(key));
}

}  // namespace terramark::window
