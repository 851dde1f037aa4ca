// A form: the outermost container, with the keyboard, the pointer and the one observer that shows
// it on a screen.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/desktop.h"
#include "forms/pointer.h"

namespace terramark::forms {

/// Sees every change of a form and its controls; the window draws from it. All calls come on the
/// one thread, before the assignment that caused them returns.
class FormObserver {
 public:
  virtual void ControlAdded(Control& control) = 0;
  /// The control is about to go; only its identity may be used.
  virtual void ControlRemoved(Control& control) = 0;
  virtual void PropertyChanged(Control& control, PropertyId id) = 0;
  virtual void Restacked(Control& control) = 0;
  /// The keyboard went to a control, or to the form itself when no control has it.
  virtual void FocusMoved(Control& control) = 0;
  /// The control asks to be shown as it is now.
  virtual void Refreshed(Control& control) = 0;
  /// The pointer moved, or what it or the keyboard drags moved, appeared or went.
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
  /// Key events reach the form's slots before the control that has the focus.
  bool KeyPreview = false;
  PointerRouter Pointer{*this};

  /// Puts a control on the form inside a container, in front of what stands there already. The
  /// order of adding is the tab order. A control that is on a form already ends the program.
  void Add(Control& control, Control& container);
  /// All controls in tab order.
  const std::vector<Control*>& Controls() const { return controls_; }

  /// Gives the keyboard to a control of this form, or with null to none. One that is disabled or
  /// invisible, or stands in something that is, does not take it: it stays where it was.
  void Focus(Control* control);
  /// The control that has the keyboard; null when none has. One that is disabled or hidden loses
  /// it, and gets it back with its state unless another has taken it by then.
  Control* ActiveControl() const { return active_; }

  /// Keys as the keyboard gives them; a repeat must not be fed as a release. Whether a press was
  /// taken: then its character is not typed, its release is told to nobody, and its repeats reach
  /// only the control that had the keyboard at the press.
  bool KeyPressed(KeyEvent key);
  void KeyReleased(const KeyEvent& key);
  /// A pressed key that makes a character, before the text changes.
  void CharacterTyped();

  /// Takes a modal form off the screen; the ShowModal that shows it returns.
  void Unload();

  /// One observer or none.
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
  /// What lost the keyboard by its state, while no control has it.
  Control* lost_ = nullptr;
  /// Of a key that was taken: who had the keyboard at the press, and the hold that the keys had
  /// then.
  struct HandledKey {
    Control* Active = nullptr;
    unsigned DragNumber = 0;

    /// Whether a repeat still means what the press did.
    bool SameContextAs(const HandledKey& now) const {
      return Active == now.Active && (DragNumber == 0 || DragNumber == now.DragNumber);
    }
  };
  /// The keys that are down and were taken, by their codes; of their controls only the identity is
  /// used.
  std::map<std::int16_t, HandledKey> taken_;
};

}  // namespace terramark::forms
