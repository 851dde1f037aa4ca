// Routes the pointer over a form: which control a press, move or release reaches, who has it
// captured, and what is dragged and dropped. What the keyboard does in the mouse's stead goes the
// same way.
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

  /// What the window feeds: the pointer in pixels of the form's inside, on it or not, one of the
  /// buttons of MouseEvent, and the key mask. A release of a button that is not down is passed
  /// over. The first button that goes down captures the pointer for the control under it until all
  /// are up. A disabled control lets the pointer through to what lies under it.
  void Press(int x, int y, std::int16_t button, std::int16_t shift);
  void Move(int x, int y, std::int16_t shift);
  void Release(int x, int y, std::int16_t button, std::int16_t shift);
  /// A control pressed by other means than the mouse: a press and release in its middle, or in a
  /// picture box in the middle of what is seen, whatever lies over it. Nothing happens while it or
  /// its container is disabled, or a button of the mouse is down.
  void SimulateClick(Control& control, std::int16_t shift, std::int16_t button = LeftButton);
  /// A move of the pointer to the middle of a control, likewise.
  void SimulateHover(Control& control);

  /// Takes hold of a control by other means than the mouse, with a left press on its corner; only
  /// where that begins a drag. A press of the mouse, and another control that gets the keyboard,
  /// put it back.
  void BeginKeyDrag(Control& control);
  /// Carries what is held so many pixels of its container.
  void MoveKeyDrag(int across, int down);
  /// Drops what is held on its container, whatever lies there.
  void DropKeyDrag();
  /// Ends such a hold; the control stays where it was.
  void CancelKeyDrag();
  /// Whether a control is in the air in that way, or by the mouse.
  bool HasKeyDrag() const { return keyDrag_ && dragged_ != nullptr; }
  /// A number of its own for each such hold; 0 while nothing is held.
  unsigned KeyDragNumber() const { return HasKeyDrag() ? keyDrags_ : 0; }
  bool HasMouseDrag() const { return dragged_ != nullptr && !keyDrag_; }

  /// The buttons that are down, a sum of LeftButton, RightButton and MiddleButton; a drag that is
  /// cancelled leaves them down.
  std::int16_t ButtonsDown() const { return buttonsDown_; }

  /// Where the pointer was last, as it was fed.
  PixelPoint Position() const { return at_; }

  /// The control that a press at this place would reach; the form itself where there is none.
  Control& ControlAt(int x, int y) const;
  /// The control that a move at this place describes, enabled or not.
  Control& HoveredControlAt(int x, int y) const;

  /// From now on the release drops the control instead of reaching it as MouseUp. Without a button
  /// down nothing begins.
  void BeginDrag(Control& source);
  /// Ends a drag; the source stays where it was and nothing is dropped.
  void CancelDrag();
  /// Once every 20 ms or so while a drag lasts: scrolls the picture box when the pointer is near
  /// the edge of what the box shows, or outside, and then the faster the farther.
  void AutoScroll();

  /// The control in the air, where its top left corner is, and where it is held, both in its
  /// container's pixels.
  struct ActiveDrag {
    const Control& Source;
    PixelPoint TopLeft;
    PixelPoint HotSpot;
  };
  std::optional<ActiveDrag> CurrentDrag() const;

  /// A control is about to go.
  void Forget(const Control& control);

 private:
  void ReleaseOn(Control& target, PixelPoint inside, std::int16_t button, std::int16_t shift);
  void NotifyPointerMoved() const;
  void DropOn(Control& target, ScalePoint inside);

  Form& form_;
  Control* captured_ = nullptr;
  Control* dragged_ = nullptr;
  /// Where in the dragged control the pointer took hold, in pixels.
  PixelPoint hotSpot_;
  PixelPoint at_;
  std::int16_t buttonsDown_ = 0;
  std::int16_t lastButton_ = 0;
  std::int16_t dragButton_ = 0;
  /// Whether what is dragged is held without the mouse, how many such holds there have been, and
  /// how far it has been carried.
  bool keyDrag_ = false;
  unsigned keyDrags_ = 0;
  PixelPoint carried_;
};

}  // namespace terramark::forms
