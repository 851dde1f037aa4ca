// A form: the outermost container, with the keyboard focus, the pointer and the observer that shows
// it on the screen.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/desktop.h"
#include "forms/pointer.h"

namespace terramark::forms {

/// Notified of every change of a form and its controls; the window draws from that. All calls come
/// on the one thread, before the assignment that caused them returns.
class FormObserver {
 public:
  virtual void ControlAdded(Control& control) = 0;
  /// The control is about to be destroyed; only its address may be used.
  virtual void ControlRemoved(Control& control) = 0;
  virtual void PropertyChanged(Control& control, PropertyId id) = 0;
  virtual void Restacked(Control& control) = 0;
  /// The focus has moved to a control, or to the form itself when no control has it.
  virtual void FocusMoved(Control& control) = 0;
  /// The control is to be shown as it is now.
  virtual void Refreshed(Control& control) = 0;
  /// The pointer moved, or the dragged control moved, appeared or disappeared.
  virtual void PointerMoved() = 0;
  virtual void Unloaded() = 0;

 protected:
  ~FormObserver() = default;
};

class Form : public Control {
 public:
  Form(Desktop& host, std::string name);
  ~Form() override;

  Desktop& Host;
  Property<std::string> Caption{*this, PropertyId::Caption};
  /// Whether the form's slots receive key events before the control with the focus.
  bool KeyPreview = false;
  PointerRouter Pointer{*this};

  /// Puts a control on the form, inside a container and in front of its other controls. The order
  /// of adding is the tab order. Adding a control that is on a form already ends the program.
  void Add(Control& control, Control& container);
  /// All controls in tab order.
  const std::vector<Control*>& Controls() const { return controls_; }

  /// Moves the focus to a control of this form, or with null to none. A control that is disabled or
  /// invisible, or in a container that is, does not receive it: the focus stays where it was.
  void Focus(Control* control);
  /// The control with the focus; null for none. A control that is disabled or hidden loses the
  /// focus. It receives it back when it is enabled or shown again, unless another control has it by
  /// then.
  Control* ActiveControl() const { return active_; }

  /// The keys of the keyboard; a repeat must not be reported as a release. Returns whether the
  /// press was handled: then its character is not typed, nobody receives its release, and its
  /// repeats reach only the control that had the focus at the press, and none once the key drag of
  /// that time has ended.
  bool KeyPressed(KeyEvent key);
  void KeyReleased(const KeyEvent& key);
  /// Reports a pressed key that makes a character, before the text changes.
  void CharacterTyped();

  /// Closes a modal form; the ShowModal that shows it returns.
  void Unload();

  /// Sets the observer, or none.
  void Observe(FormObserver* observer) { observer_ = observer; }

 private:
  friend class Control;
  friend class PointerRouter;

  void Remove(Control& control);
  void Restack(Control& control, StackEnd end);
  void NotifyObserver(Control& control, PropertyId id);

  FormObserver* observer_ = nullptr;
  std::vector<Control*> controls_;
  Control* active_ = nullptr;
  /// The control that lost the focus when it was disabled or hidden, while no control has the
  /// focus.
  Control* lost_ = nullptr;
  /// For a handled key: the control that had the focus at the press, and the key drag at that time.
  struct HandledKey {
    Control* Active = nullptr;
    unsigned DragNumber = 0;

    /// Whether a repeat still means what the press did.
    bool SameContextAs(const HandledKey& now) const {
      return Active == now.Active && (DragNumber == 0 || DragNumber == now.DragNumber);
    }
  };
  /// The handled keys that are down, by their codes; only the addresses of their controls are used.
  std::map<std::int16_t, HandledKey> taken_;
};

}  // namespace terramark::forms
