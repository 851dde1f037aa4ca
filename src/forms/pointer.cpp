#include "forms/pointer.h"

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/picturebox.h"

namespace terramark::forms {

namespace {

/// Width of the strip along the edges of a box in which a drag scrolls, and the step, in pixels.
constexpr int ScrollStrip = 24;
constexpr int ScrollStep = 8;

/// A picture box's own scroll bars are no part of what a pointer can reach.
bool OnScrollBar(const Control& control, PixelPoint inBox) {
  if (control.Kind() != ControlKind::PictureBox) return false;
  const auto& box = static_cast<const PictureBox&>(control);
  return inBox.X >= box.ViewWidth() || inBox.Y >= box.ViewHeight();
}

/// Whether a disabled control stops the pointer or lets it through.
enum class Disabled { Stops, LetsThrough };

Control* TopmostIn(Control& container, PixelPoint at, Disabled disabled) {
  const PixelPoint inside = at - InnerOrigin(container);
  const auto& stack = container.Children();
  for (std::size_t left = stack.size(); left > 0; --left) {
    Control* child = stack[left - 1];
    if (!child->Visible) continue;
    if (!child->Enabled && disabled == Disabled::LetsThrough) continue;
    const PixelRect bounds = PixelBounds(*child);
    if (!bounds.Contains(inside)) continue;
    if (OnScrollBar(*child, inside - PixelPoint{bounds.Left, bounds.Top})) continue;
    Control* deeper = TopmostIn(*child, at, disabled);
    return deeper != nullptr ? deeper : child;
  }
  return nullptr;
}

MouseEvent EventFor(const Control& control, PixelPoint at, int button, int shift) {
  const ScalePoint point = PointInside(control, at);
  return {control.Index(), static_cast<std::int16_t>(button), static_cast<std::int16_t>(shift),
          point.X, point.Y};
}

bool Inside(const Control& control, PixelPoint at) {
  const PixelRect bounds = PixelBounds(control);
  return PixelRect{0, 0, bounds.Width, bounds.Height}.Contains(at - InnerOrigin(control));
}

int StepNearEdge(int at, int extent) {
  if (at < 0 || at >= extent) return 0;
  if (at < ScrollStrip) return -ScrollStep;
  return at >= extent - ScrollStrip ? ScrollStep : 0;
}

}  // namespace

Control& PointerRouter::Under(int x, int y) const {
  Control* topmost = TopmostIn(form_, {x, y}, Disabled::LetsThrough);
  return topmost != nullptr ? *topmost : form_;
}

Control& PointerRouter::Hovered(int x, int y) const {
  Control* topmost = TopmostIn(form_, {x, y}, Disabled::Stops);
  return topmost != nullptr ? *topmost : form_;
}

void PointerRouter::Press(int x, int y, std::int16_t button, std::int16_t shift) {
  at_ = {x, y};
  if (buttonsDown_ == 0) captured_ = &Under(x, y);
  buttonsDown_ = static_cast<std::int16_t>(buttonsDown_ | button);
  lastButton_ = button;
  if (captured_ == nullptr || dragged_ != nullptr) return;
  captured_->MouseDown.Raise(EventFor(*captured_, at_, button, shift));
}

void PointerRouter::Move(int x, int y, std::int16_t shift) {
  at_ = {x, y};
  if (dragged_ != nullptr) {
    if (form_.observer_ != nullptr) form_.observer_->DragMoved();
    return;
  }
  Control& target = captured_ != nullptr ? *captured_ : Hovered(x, y);
  target.MouseMove.Raise(EventFor(target, at_, buttonsDown_, shift));
}

void PointerRouter::Release(int x, int y, std::int16_t button, std::int16_t shift) {
  if ((buttonsDown_ & button) == 0) return;
  at_ = {x, y};
  buttonsDown_ = static_cast<std::int16_t>(buttonsDown_ & ~button);
  Control* target = captured_;
  if (buttonsDown_ == 0) captured_ = nullptr;
  if (dragged_ != nullptr) {
    if (button == dragButton_) Drop();
    return;
  }
  if (target != nullptr) ReleaseOn(*target, button, shift);
}

void PointerRouter::ReleaseOn(Control& target, std::int16_t button, std::int16_t shift) {
  const MouseEvent event = EventFor(target, at_, button, shift);
  if (target.Kind() != ControlKind::CommandButton) {
    target.MouseUp.Raise(event);
    return;
  }
  // A button lets a release outside itself be a change of mind.
  if (!target.Enabled || !Inside(target, at_)) return;
  target.MouseUp.Raise(event);
  if (button == LeftButton) static_cast<CommandButton&>(target).Click.Raise({target.Index()});
}

void PointerRouter::PressKey(CommandButton& button, std::int16_t shift) {
  if (!button.Enabled || !button.Container()->Enabled || buttonsDown_ != 0) return;
  at_ = Middle(button);
  button.MouseDown.Raise(EventFor(button, at_, LeftButton, shift));
  ReleaseOn(button, LeftButton, shift);
}

void PointerRouter::BeginDrag(Control& source) {
  if (buttonsDown_ == 0) return;
  dragged_ = &source;
  dragButton_ = lastButton_;
  hold_ = at_ - InnerOrigin(source);
  if (form_.observer_ != nullptr) form_.observer_->DragMoved();
}

void PointerRouter::CancelDrag() {
  if (dragged_ == nullptr) return;
  // What is still down reaches nobody when it comes up.
  dragged_ = nullptr;
  captured_ = nullptr;
  if (form_.observer_ != nullptr) form_.observer_->DragMoved();
}

void PointerRouter::Drop() {
  Control& source = *dragged_;
  CancelDrag();
  Control& target = Under(at_.X, at_.Y);
  const ScalePoint point = PointInside(target, at_);
  target.DragDrop.Raise({target.Index(), source, point.X, point.Y});
}

void PointerRouter::ScrollByDrag() {
  if (dragged_ == nullptr || dragged_->Container()->Kind() != ControlKind::PictureBox) return;
  auto& box = static_cast<PictureBox&>(*dragged_->Container());
  const PixelPoint at = InBox(box, at_ - InnerOrigin(box));
  box.ScrollBy(StepNearEdge(at.X, box.ViewWidth()), StepNearEdge(at.Y, box.ViewHeight()));
}

std::optional<PointerRouter::Flight> PointerRouter::InFlight() const {
  if (dragged_ == nullptr) return std::nullopt;
  return Flight{*dragged_, at_ - hold_ - InnerOrigin(*dragged_->Container())};
}

void PointerRouter::Forget(const Control& control) {
  if (captured_ == &control) captured_ = nullptr;
  if (dragged_ == &control) CancelDrag();
}

}  // namespace terramark::forms
