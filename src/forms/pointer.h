// Routes the pointer over a form: which control a press, move or release reaches, who has it
// captured, and what is dragged and dropped.
#pragma once

#include <cstdint>
#include <optional>

#include "forms/geometry.h"

namespace terramark::forms {

class CommandButton;
class Control;
class Form;
class PictureBox;

class PointerRouter {
 public:
  explicit PointerRouter(Form& form) : form_(form) {}

  /// What the window feeds: the pointer in pixels of the form's inside, on it or not, one of the
  /// buttons of MouseEvent, and the key mask. A release of a button that is not down is passed
  /// over. The first button that goes down captures the pointer for the control under it until all
  /// are up. A disabled control lets the pointer through to what lies under it.
  void Press(int x, int y, std::int16_t button, std::int16_t shift);
  void Move(int x, int y, std::int16_t shift);
  void Release(int x, int y, std::int16_t button, std::int16_t shift);
  /// A button pressed by other means than the mouse: a left press and release in its middle.
  /// Nothing happens while it or its container is disabled, or a button of the mouse is down.
  void PressKey(CommandButton& button, std::int16_t shift);

  /// The buttons that are down, a sum of LeftButton, RightButton and MiddleButton; a drag that is
  /// cancelled leaves them down.
  std::int16_t ButtonsDown() const { return buttonsDown_; }

  /// The control that a press at this place would reach; the form itself where there is none.
  Control& Under(int x, int y) const;
  /// The control that a move at this place describes, enabled or not.
  Control& Hovered(int x, int y) const;

  /// From now on the release drops the control instead of reaching it as MouseUp. Without a button
  /// down nothing begins.
  void BeginDrag(Control& source);
  /// Ends a drag; the source stays where it was and nothing is dropped.
  void CancelDrag();
  /// Once every 20 ms or so while a drag lasts: scrolls a picture box under the pointer when the
  /// pointer is near the edge of what the box shows.
  void ScrollByDrag();

  /// The control in the air and where its top left corner is held, in its container's pixels.
  struct Flight {
    const Control& Source;
    PixelPoint Corner;
  };
  std::optional<Flight> InFlight() const;

  /// A control is about to go.
  void Forget(const Control& control);

 private:
  void Drop();
  void ReleaseOn(Control& target, std::int16_t button, std::int16_t shift);

  Form& form_;
  Control* captured_ = nullptr;
  Control* dragged_ = nullptr;
  /// Where in the dragged control the pointer took hold, in pixels.
  PixelPoint hold_;
  PixelPoint at_;
  std::int16_t buttonsDown_ = 0;
  std::int16_t lastButton_ = 0;
  std::int16_t dragButton_ = 0;
};

}  // namespace terramark::forms
