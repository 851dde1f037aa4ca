// The events of the forms layer, and the slots for their handlers.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>

namespace terramark::forms {

class Control;

/// Buttons of a mouse event.
inline constexpr std::int16_t LeftButton = 1;
inline constexpr std::int16_t RightButton = 2;
inline constexpr std::int16_t MiddleButton = 4;

/// Bits of the key mask Shift.
inline constexpr std::int16_t ShiftKey = 1;
inline constexpr std::int16_t CtrlKey = 2;
inline constexpr std::int16_t AltKey = 4;

/// Whether a press or a release asks for help: with the Shift key alone.
inline bool AsksForHelp(std::int16_t shift) {
  return shift == ShiftKey;
}

/// Key codes; any other key has the code 0.
enum KeyCode : std::int16_t {
  KeyReturn = 13,
  KeyEscape = 27,
  KeySpace = 32,
  KeyPageUp = 33,
  KeyPageDown = 34,
  KeyEnd = 35,
  KeyHome = 36,
  KeyLeftArrow = 37,
  KeyUpArrow = 38,
  KeyRightArrow = 39,
  KeyDownArrow = 40,
  Key0 = 48,
  Key9 = 57,
  KeyC = 67,
  KeyMenu = 93,
  KeyF1 = 112,
  KeyF6 = 117,
  KeyPlus = 187,
  KeyMinus = 189,
};

/// X and Y are in the scale of the control that receives the event: pixels in a picture box, twips
/// from the top left corner of any other control. Index is the element's number in its control
/// array.
struct MouseEvent {
  std::int16_t Index = 0;
  std::int16_t Button = 0;
  std::int16_t Shift = 0;
  float X = 0;
  float Y = 0;
};

/// Source is the control that was dragged; X and Y are as in MouseEvent, for the control that it
/// was dropped on.
struct DropEvent {
  std::int16_t Index = 0;
  Control& Source;
  float X = 0;
  float Y = 0;
};

/// KeyCode is a code of the enum, or 0 for any other key; Shift is a sum of ShiftKey, CtrlKey and
/// AltKey.
struct KeyEvent {
  std::int16_t KeyCode = 0;
  std::int16_t Shift = 0;
  /// Whether it is a repeat of a key that is held down.
  bool Repeat = false;
  /// Set by a handler of KeyDown that has used the key: no further handler receives it.
  bool Handled = false;
};

/// An event with no arguments but the element's number: Click, Change, KeyPress and GotFocus.
struct PlainEvent {
  std::int16_t Index = 0;
};

/// The slot of an event's handler; without a handler the event has no effect. A handler can change
/// the event only where the slot passes a reference, in Slot<KeyEvent&>.
template <typename Event>
class Slot {
 public:
  Slot& operator=(std::function<void(const Event&)> handler) {
    handler_ = std::move(handler);
    return *this;
  }
  void Raise(const Event& event) const {
    if (handler_) handler_(event);
  }
  /// Whether the slot has a handler.
  explicit operator bool() const { return static_cast<bool>(handler_); }

 private:
  std::function<void(const Event&)> handler_;
};

}  // namespace terramark::forms
