#include "forms/form.h"

#include <algorithm>
#include <utility>

#include "forms/fatalerror.h"

namespace terramark::forms {

namespace {

bool AcceptsFocus(const Control& control) {
  for (const Control* at = &control; at != nullptr; at = at->Container()) {
    if (!at->Enabled || !at->Visible) return false;
  }
  return true;
}

}  // namespace

Form::Form(Desktop& host, std::string name)
    : Control(ControlKind::Form, std::move(name)), Host(host) {
  form_ = this;
}

Form::~Form() {
  // The controls are members of the derived form, which are destroyed by now, or outlive the form
  // without an owner.
  for (Control* control : controls_) control->form_ = nullptr;
}

void Form::Add(Control& control, Control& container) {
  if (control.form_ != nullptr) FatalError(control.name_ + " is on a form already");
  control.form_ = this;
  control.container_ = &container;
  container.children_.push_back(&control);
  controls_.push_back(&control);
  if (observer_ != nullptr) observer_->ControlAdded(control);
}

void Form::Remove(Control& control) {
  if (observer_ != nullptr) observer_->ControlRemoved(control);
  Pointer.Forget(control);
  if (active_ == &control) active_ = nullptr;
  if (lost_ == &control) lost_ = nullptr;
  if (control.container_ != nullptr) {
    std::erase(control.container_->children_, &control);
    control.container_->ChildRemoved(control);
  }
  for (Control* child : control.children_) child->container_ = nullptr;
  std::erase(controls_, &control);
}

void Form::Restack(Control& control, StackEnd end) {
  auto& stack = control.container_->children_;
  const auto place = std::find(stack.begin(), stack.end(), &control);
  if (end == StackEnd::Front) {
    std::rotate(place, place + 1, stack.end());
  } else {
    std::rotate(stack.begin(), place, place + 1);
  }
  if (observer_ != nullptr) observer_->Restacked(control);
}

void Form::Focus(Control* control) {
  if (active_ == control || (control != nullptr && !AcceptsFocus(*control))) return;
  Pointer.CancelKeyDrag();
  active_ = control;
  lost_ = nullptr;
  if (observer_ != nullptr) observer_->FocusMoved(control != nullptr ? *control : *this);
  if (control != nullptr && active_ == control) control->GotFocus.Raise({control->Index()});
}

void Form::NotifyObserver(Control& control, PropertyId id) {
  const bool movesKeys = id == PropertyId::Enabled || id == PropertyId::Visible;
  // Before the observer is notified, so that the screen need not move the focus itself.
  if (movesKeys && active_ != nullptr && !AcceptsFocus(*active_)) {
    Control* const lost = active_;
    Focus(nullptr);
    lost_ = lost;
  }
  if (observer_ != nullptr) observer_->PropertyChanged(control, id);
  if (movesKeys && lost_ != nullptr && AcceptsFocus(*lost_)) Focus(lost_);
}

bool Form::KeyPressed(KeyEvent key) {
  const HandledKey now{active_, Pointer.KeyDragNumber()};
  const auto down = taken_.find(key.KeyCode);
  const bool goesOn = key.Repeat && down != taken_.end();
  // The repeats of an arrow that moved a dragged marker must not walk to other markers when the
  // drag has ended.
  if (goesOn && !down->second.SameContextAs(now)) return true;
  if (key.KeyCode == KeyEscape && Pointer.CurrentDrag()) {
    Pointer.CancelDrag();
    key.Handled = true;
  }
  if (!key.Handled && KeyPreview) KeyDown.Raise(key);
  if (!key.Handled && now.Active != nullptr) now.Active->KeyDown.Raise(key);
  // A repeat is handled even where the key has no meaning any more, as an arrow after Shift was
  // pressed.
  if (goesOn) key.Handled = true;
  if (key.Handled) {
    taken_[key.KeyCode] = now;
  } else {
    taken_.erase(key.KeyCode);
  }
  return key.Handled;
}

void Form::KeyReleased(const KeyEvent& key) {
  if (taken_.erase(key.KeyCode) != 0) return;
  if (KeyPreview) KeyUp.Raise(key);
  if (active_ != nullptr) active_->KeyUp.Raise(key);
}

void Form::CharacterTyped() {
  if (active_ != nullptr) active_->KeyPress.Raise({active_->Index()});
}

void Form::Unload() {
  if (observer_ != nullptr) observer_->Unloaded();
}

}  // namespace terramark::forms
