#include "window/keyfeed.h"

namespace terramark::window {

namespace {

/// The Qt key of a key code; Key_unknown for any other number. A new code does not compile until it
/// has its line here.
constexpr Qt::Key KeyOf(forms::KeyCode code) {
  switch (code) {
    case forms::KeyReturn:
      return Qt::Key_Return;
    case forms::KeyEscape:
      return Qt::Key_Escape;
    case forms::KeySpace:
      return Qt::Key_Space;
    case forms::KeyPageUp:
      return Qt::Key_PageUp;
    case forms::KeyPageDown:
      return Qt::Key_PageDown;
    case forms::KeyEnd:
      return Qt::Key_End;
    case forms::KeyHome:
      return Qt::Key_Home;
    case forms::KeyLeftArrow:
      return Qt::Key_Left;
    case forms::KeyUpArrow:
      return Qt::Key_Up;
    case forms::KeyRightArrow:
      return Qt::Key_Right;
    case forms::KeyDownArrow:
      return Qt::Key_Down;
    case forms::Key0:
      return Qt::Key_0;
    case forms::Key9:
      return Qt::Key_9;
    case forms::KeyC:
      return Qt::Key_C;
    case forms::KeyMenu:
      return Qt::Key_Menu;
    case forms::KeyF1:
      return Qt::Key_F1;
    case forms::KeyF6:
      return Qt::Key_F6;
    case forms::KeyPlus:
      return Qt::Key_Plus;
    case forms::KeyMinus:
      return Qt::Key_Minus;
  }
  return Qt::Key_unknown;
}

std::int16_t CodeOf(int key) {
  // Enter on the keypad means Return; plus is on the key of the equals sign, with Shift.
  if (key == Qt::Key_Enter) return forms::KeyReturn;
  if (key == Qt::Key_Equal) return forms::KeyPlus;
  constexpr std::int16_t LastCode = 255;
  for (std::int16_t code = 1; code <= LastCode; ++code) {
    if (key == KeyOf(forms::KeyCode{code})) return code;
  }
  return 0;
}

forms::KeyEvent EventOf(const QKeyEvent& key) {
  // Key_unknown would match the numbers between the codes.
  const std::int16_t code = key.key() == Qt::Key_unknown ? std::int16_t{0} : CodeOf(key.key());
  return {code, KeyMask(key.modifiers()), key.isAutoRepeat()};
}

/// Whether the widget has the focus in its window, or is that window and no widget in it has the
/// focus.
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

/// True once for each event: Qt offers it to the focus widget, and then to its window if the widget
/// ignores it. By then a handler may have moved the focus, so the event itself is compared.
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
