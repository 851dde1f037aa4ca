// What all controls share: place, colours, state, mouse events and their place in the stack.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "forms/color.h"
#include "forms/events.h"
#include "forms/property.h"

namespace terramark::forms {

class Form;

enum class ControlKind { Form, Label, TextBox, CommandButton, PictureBox, Frame, VScrollBar };

/// The unit inside a container, for the places of its children and for its own mouse events.
enum class Scale { Twips, Pixels };

enum class StackEnd { Front, Back };

class Control : public PropertyOwner {
 public:
  /// The name and the index of a control never change; a control outside an array has index 0.
  Control(ControlKind kind, std::string name, std::int16_t index = 0)
      : kind_(kind), name_(std::move(name)), index_(index) {}
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  /// The place inside the container and the size, in the container's scale.
  Property<float> Left{*this, PropertyId::Left};
  Property<float> Top{*this, PropertyId::Top};
  Property<float> Width{*this, PropertyId::Width};
  Property<float> Height{*this, PropertyId::Height};
  Property<bool> Visible{*this, PropertyId::Visible, true};
  Property<bool> Enabled{*this, PropertyId::Enabled, true};
  Property<Color> BackColor{*this, PropertyId::BackColor, SysButtonFace};
  Property<Color> ForeColor{*this, PropertyId::ForeColor, SysWindowText};
  Property<std::string> Tag{*this, PropertyId::Tag};
  std::string ToolTipText;
  /// The name for assistive tools, which read a label's caption after it. Empty where the caption
  /// is enough.
  std::string AccessibleName;
  /// The name of an element of a control array on a picture, by its index. Where it is empty,
  /// assistive tools read the caption.
  std::function<std::string(std::int16_t index)> AccessibleNameOf;
  /// What assistive tools read after the place of an element of a control array on a picture, by
  /// its index; empty for nothing.
  std::function<std::string(std::int16_t index)> AccessibleDescriptionOf;
  /// The order among the labels on a picture for assistive tools: the lowest first; labels with the
  /// same number by their index.
  std::int16_t ListOrder = 0;
  /// The topic of the help about the control; 0 for none.
  std::int16_t HelpTopic = 0;
  /// Unit inside this control, when it contains others.
  Scale InnerScale = Scale::Twips;

  Slot<MouseEvent> MouseDown;
  Slot<MouseEvent> MouseMove;
  Slot<MouseEvent> MouseUp;
  Slot<DropEvent> DragDrop;
  Slot<KeyEvent&> KeyDown;
  Slot<KeyEvent> KeyUp;
  Slot<PlainEvent> KeyPress;
  /// Raised after the control has received the focus.
  Slot<PlainEvent> GotFocus;

  ControlKind Kind() const { return kind_; }
  const std::string& Name() const { return name_; }
  /// The number in its control array; 0 for a control outside one.
  std::int16_t Index() const { return index_; }
  /// The form that it is on; null until it is added to one.
  Form* ParentForm() const { return form_; }
  Control* Container() const { return container_; }
  /// The controls in it, from the back to the front.
  const std::vector<Control*>& Children() const { return children_; }
  /// Whether it and all its containers are visible.
  bool IsVisible() const;

  /// Begins a drag of this control with the mouse button that is down; a drop ends it. Does nothing
  /// when no button is down, or when the control is on no form.
  void Drag();
  /// Sets Left and Top, in the container's scale. The place is not limited.
  void Move(float left, float top);
  /// Moves the control to one end of its container's stack; a control on no form stays as it is.
  void ZOrder(StackEnd end);
  /// Gives the control the focus, as Form::Focus does.
  void SetFocus();
  /// Asks the observer to show the control as it is now.
  void Refresh();

  void PropertyChanged(PropertyId id) override;
  /// A control in this one is about to be destroyed; only its address may be used.
  virtual void ChildRemoved(const Control& /*child*/) {}

 protected:
  /// Copies all that the template has, except its index, visibility and place in the stack.
  void CopyCommon(const Control& from);

 private:
  friend class Form;

  const ControlKind kind_;
  const std::string name_;
  const std::int16_t index_;
  Form* form_ = nullptr;
  Control* container_ = nullptr;
  std::vector<Control*> children_;
};

}  // namespace terramark::forms
