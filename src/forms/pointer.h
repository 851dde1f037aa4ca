// Routes the pointer over a form: which control a press, a move or a release reaches, which one has
// captured it, and what is dragged and dropped. Keys that replace the mouse are routed here too.
#pragma once

#include <cstdint>
#include <optional>

#include "forms/events.h"
#include "forms/geometry.h"

namespace terramark::forms {

class Control;
class Form;
class PictureBox;

class PointerRouter {
 public:
  explicit PointerRouter(Form& form) : form_(form) {}

  /// Input from the window: the pointer in pixels of the form's inside, also outside the form, one
  /// of the buttons of MouseEvent, and the key mask. The release of a button that is not down is
  /// ignored. The first button that is pressed captures the pointer for the control under it until
  /// all buttons are up. A disabled control lets the pointer through to the control below.
  void Press(int x, int y, std::int16_t button, std::int16_t shift);
  void Move(int x, int y, std::int16_t shift);
  void Release(int x, int y, std::int16_t button, std::int16_t shift);
  /// Presses and releases a control without the mouse: in its middle, or in a picture box in the
  /// middle of the visible part, whatever is in front of it. Does nothing while the control or its
  /// container is disabled, or a mouse button is down.
  void SimulateClick(Control& control, std::int16_t shift, std::int16_t button = LeftButton);
  /// A move of the pointer to the middle of a control, enabled or not; nothing happens while a
  /// mouse button is down.
  void SimulateHover(Control& control);

  /// Begins a drag of a control without the mouse, with a left press on its corner, if that press
  /// begins a drag. A press of the mouse cancels it, and so does a move of the focus to another
  /// control.
  void BeginKeyDrag(Control& control);
  /// Moves the dragged control by so many pixels of its container.
  void MoveKeyDrag(int across, int down);
  /// Drops the dragged control on its container, whatever else is there.
  void DropKeyDrag();
  /// Cancels the key drag; the control stays where it was.
  void CancelKeyDrag();
  /// Whether a control is dragged by keys.
  bool HasKeyDrag() const { return keyDrag_ && dragged_ != nullptr; }
  /// A different number for each key drag; 0 while there is none.
  unsigned KeyDragNumber() const { return HasKeyDrag() ? keyDrags_ : 0; }
  bool HasMouseDrag() const { return dragged_ != nullptr && !keyDrag_; }

  /// The buttons that are down, a sum of LeftButton, RightButton and MiddleButton. Cancelling a
  /// drag does not change them.
  std::int16_t ButtonsDown() const { return buttonsDown_; }

  /// The last place of the pointer.
  PixelPoint Position() const { return at_; }

  /// The control that a press at this place would reach; the form itself where there is none.
  Control& ControlAt(int x, int y) const;
  /// The control that a move at this place reaches, enabled or not.
  Control& HoveredControlAt(int x, int y) const;

  /// From now on the release drops the control, instead of reaching it as MouseUp. Does nothing
  /// without a button down.
  void BeginDrag(Control& source);
  /// Ends a drag; the source stays where it was and nothing is dropped.
  void CancelDrag();
  /// To be called about every 20 ms during a drag. Scrolls the picture box when the pointer is near
  /// the edge of its visible part, or outside; the farther outside, the faster.
  void AutoScroll();

  /// The dragged control, the place of its top left corner, and the point where it is held, both in
  /// pixels of its container.
  struct ActiveDrag {
    const Control& Source;
    PixelPoint TopLeft;
    PixelPoint HotSpot;

    /// The part of the container that the control covers on the screen at that place.
    PixelRect DisplayBounds() const;
  };
  std::optional<ActiveDrag> CurrentDrag() const;
  /// The same if keys drag this control, else nothing.
  std::optional<ActiveDrag> KeyDragOf(const Control& control) const;

  /// A control is about to be destroyed.
  void Forget(const Control& control);

 private:
  void ReleaseOn(Control& target, PixelPoint inside, std::int16_t button, std::int16_t shift);
  void NotifyPointerMoved() const;
  void DropOn(Control& target, ScalePoint inside);

  Form& form_;
  Control* captured_ = nullptr;
  Control* dragged_ = nullptr;
  /// The point of the dragged control where the drag began, in pixels.
  PixelPoint hotSpot_;
  PixelPoint at_;
  std::int16_t buttonsDown_ = 0;
  std::int16_t lastButton_ = 0;
  std::int16_t dragButton_ = 0;
  /// Whether the drag is one by keys; the number of key drags so far; how far this one has moved.
  bool keyDrag_ = false;
  unsigned keyDrags_ = 0;
  PixelPoint keyTravel_;
};

}  // namespace terramark::forms
