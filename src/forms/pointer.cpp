#include "forms/pointer.h"

#include <algorithm>

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/picturebox.h"

namespace terramark::forms {

namespace {

/// The width of the strip along the edges of a box in which a drag scrolls, and the scroll step, in
/// pixels. Outside the box the step grows with the distance, up to MaxScrollStep.
constexpr int AutoScrollMargin = 24;
constexpr int ScrollStep = 8;
constexpr int AutoScrollDivisor = 4;
constexpr int MaxScrollStep = 96;

/// The pointer does not reach the controls below a picture box's own scroll bars.
bool OnScrollBar(const PictureBox& box, PixelPoint inBox) {
  return inBox.X >= box.ViewWidth() || inBox.Y >= box.ViewHeight();
}

/// Whether a disabled control stops the pointer or lets it through.
enum class Disabled { Stops, LetsThrough };

/// The place is in pixels of the container's inside.
Control* TopmostIn(Control& container, PixelPoint inside, Disabled disabled) {
  const auto& stack = container.Children();
  for (std::size_t left = stack.size(); left > 0; --left) {
    Control* child = stack[left - 1];
    if (!child->Visible) continue;
    if (!child->Enabled && disabled == Disabled::LetsThrough) continue;
    const PixelRect bounds = DisplayBounds(*child);
    if (!bounds.Contains(inside)) continue;
    PixelPoint deep = inside - bounds.TopLeft();
    if (child->Kind() == ControlKind::PictureBox) {
      const auto& box = static_cast<const PictureBox&>(*child);
      if (OnScrollBar(box, deep)) continue;
      deep = MapToPicture(box, deep);
    }
    Control* deeper = TopmostIn(*child, deep, disabled);
    return deeper != nullptr ? deeper : child;
  }
  return nullptr;
}

MouseEvent EventFor(const Control& control, PixelPoint inside, int button, int shift) {
  const ScalePoint point = PixelsToScale(control, inside);
  return {control.Index(), static_cast<std::int16_t>(button), static_cast<std::int16_t>(shift),
          point.X, point.Y};
}

/// In pixels of the control's inside.
PixelPoint CentreInside(const Control& control) {
  if (control.Kind() == ControlKind::PictureBox) {
    const auto& box = static_cast<const PictureBox&>(control);
    return MapToPicture(box, box.ViewCentre());
  }
  const PixelRect bounds = PixelBounds(control);
  return {bounds.Width / 2, bounds.Height / 2};
}

int AutoScrollStep(int at, int extent) {
  const int outside = std::max({0, -at, at - extent + 1});
  const int step = std::min(ScrollStep + outside / AutoScrollDivisor, MaxScrollStep);
  if (at < AutoScrollMargin) return -step;
  return at >= extent - AutoScrollMargin ? step : 0;
}

}  // namespace

Control& PointerRouter::ControlAt(int x, int y) const {
  Control* topmost = TopmostIn(form_, {x, y}, Disabled::LetsThrough);
  return topmost != nullptr ? *topmost : form_;
}

Control& PointerRouter::HoveredControlAt(int x, int y) const {
  Control* topmost = TopmostIn(form_, {x, y}, Disabled::Stops);
  return topmost != nullptr ? *topmost : form_;
}

void PointerRouter::Press(int x, int y, std::int16_t button, std::int16_t shift) {
  CancelKeyDrag();
  at_ = {x, y};
  if (buttonsDown_ == 0) captured_ = &ControlAt(x, y);
  buttonsDown_ = static_cast<std::int16_t>(buttonsDown_ | button);
  lastButton_ = button;
  if (captured_ == nullptr || dragged_ != nullptr) return;
  captured_->MouseDown.Raise(EventFor(*captured_, MapFromForm(*captured_, at_), button, shift));
}

void PointerRouter::Move(int x, int y, std::int16_t shift) {
  at_ = {x, y};
  if (!HasMouseDrag()) {
    Control& target = captured_ != nullptr ? *captured_ : HoveredControlAt(x, y);
    target.MouseMove.Raise(EventFor(target, MapFromForm(target, at_), buttonsDown_, shift));
  }
  NotifyPointerMoved();
}

void PointerRouter::Release(int x, int y, std::int16_t button, std::int16_t shift) {
  if ((buttonsDown_ & button) == 0) return;
  at_ = {x, y};
  buttonsDown_ = static_cast<std::int16_t>(buttonsDown_ & ~button);
  Control* target = captured_;
  if (buttonsDown_ == 0) captured_ = nullptr;
  if (dragged_ != nullptr) {
    if (button != dragButton_) return;
    Control& under = ControlAt(x, y);
    return DropOn(under, PixelsToScale(under, MapFromForm(under, at_)));
  }
  if (target != nullptr) ReleaseOn(*target, MapFromForm(*target, at_), button, shift);
}

void PointerRouter::ReleaseOn(Control& target, PixelPoint inside, std::int16_t button,
                              std::int16_t shift) {
  const MouseEvent event = EventFor(target, inside, button, shift);
  if (target.Kind() != ControlKind::CommandButton) {
    target.MouseUp.Raise(event);
    return;
  }
  // A release outside the button cancels the press.
  const PixelRect bounds = PixelBounds(target);
  if (!target.Enabled || !PixelRect{0, 0, bounds.Width, bounds.Height}.Contains(inside)) return;
  target.MouseUp.Raise(event);
  if (button == LeftButton) static_cast<CommandButton&>(target).Click.Raise({target.Index()});
}

void PointerRouter::SimulateClick(Control& control, std::int16_t shift, std::int16_t button) {
  if (!control.Enabled || !control.Container()->Enabled || buttonsDown_ != 0) return;
  CancelKeyDrag();
  const PixelPoint inside = CentreInside(control);
  // Down during the press only, so that the press may begin a drag.
  buttonsDown_ = button;
  control.MouseDown.Raise(EventFor(control, inside, button, shift));
  buttonsDown_ = 0;
  if (dragged_ != nullptr) {
    DropOn(control, PixelsToScale(control, inside));
  } else {
    ReleaseOn(control, inside, button, shift);
  }
}

void PointerRouter::SimulateHover(Control& control) {
  if (buttonsDown_ != 0) return;
  control.MouseMove.Raise(EventFor(control, CentreInside(control), 0, 0));
}

void PointerRouter::BeginKeyDrag(Control& control) {
  if (buttonsDown_ != 0 || dragged_ != nullptr) return;
  buttonsDown_ = LeftButton;
  keyDrag_ = true;
  ++keyDrags_;
  keyTravel_ = {};
  control.MouseDown.Raise(EventFor(control, {}, LeftButton, 0));
  buttonsDown_ = 0;
  keyDrag_ = dragged_ != nullptr;
}

void PointerRouter::MoveKeyDrag(int across, int down) {
  if (!keyDrag_) return;
  keyTravel_ = keyTravel_ + PixelPoint{across, down};
  NotifyPointerMoved();
}

void PointerRouter::DropKeyDrag() {
  if (!keyDrag_) return;
  const ScalePoint travel = PixelsToContainerScale(*dragged_, keyTravel_.X, keyTravel_.Y);
  // Not in whole pixels: a place keeps its fraction.
  DropOn(*dragged_->Container(), {dragged_->Left + travel.X, dragged_->Top + travel.Y});
}

void PointerRouter::CancelKeyDrag() {
  if (keyDrag_) CancelDrag();
}

void PointerRouter::BeginDrag(Control& source) {
  if (buttonsDown_ == 0) return;
  dragged_ = &source;
  dragButton_ = lastButton_;
  hotSpot_ = MapFromForm(source, at_);
  NotifyPointerMoved();
}

void PointerRouter::CancelDrag() {
  if (dragged_ == nullptr) return;
  // The release of a button that is still down reaches nobody.
  dragged_ = nullptr;
  captured_ = nullptr;
  keyDrag_ = false;
  NotifyPointerMoved();
}

void PointerRouter::DropOn(Control& target, ScalePoint inside) {
  Control& source = *dragged_;
  CancelDrag();
  target.DragDrop.Raise({target.Index(), source, inside.X, inside.Y});
}

void PointerRouter::AutoScroll() {
  if (!HasMouseDrag()) return;
  if (dragged_->Container()->Kind() != ControlKind::PictureBox) return;
  auto& box = static_cast<PictureBox&>(*dragged_->Container());
  const PixelPoint at = at_ - MapToForm(*box.Container(), PixelBounds(box).TopLeft());
  box.ScrollBy(AutoScrollStep(at.X, box.ViewWidth()), AutoScrollStep(at.Y, box.ViewHeight()));
}

void PointerRouter::NotifyPointerMoved() const {
  if (form_.observer_ != nullptr) form_.observer_->PointerMoved();
}

PixelRect PointerRouter::ActiveDrag::DisplayBounds() const {
  return forms::DisplayBounds(Source).MovedBy(TopLeft - PixelBounds(Source).TopLeft());
}

std::optional<PointerRouter::ActiveDrag> PointerRouter::CurrentDrag() const {
  if (dragged_ == nullptr) return std::nullopt;
  if (keyDrag_) {
    const PixelPoint corner = PixelBounds(*dragged_).TopLeft() + keyTravel_;
    return ActiveDrag{*dragged_, corner, corner};
  }
  const PixelPoint held = MapFromForm(*dragged_->Container(), at_);
  return ActiveDrag{*dragged_, held - hotSpot_, held};
}

std::optional<PointerRouter::ActiveDrag> PointerRouter::KeyDragOf(const Control& control) const {
  return keyDrag_ && dragged_ == &control ? CurrentDrag() : std::nullopt;
}

void PointerRouter::Forget(const Control& control) {
  if (captured_ == &control) captured_ = nullptr;
  if (dragged_ == &control) CancelDrag();
}

}  // namespace terramark::forms
