// What all controls share: place, colours, state, mouse events and the place in the stack.
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

/// Unit of a container's inside, for the places of its children and for its own mouse events.
enum class Scale { Twips, Pixels };

enum class StackEnd { Front, Back };

class Control : public PropertyOwner {
 public:
  /// A control has its name and its index for life; a lone one has index 0.
  Control(ControlKind kind, std::string name, std::int16_t index = 0)
      : kind_(kind), name_(std::move(name)), index_(index) {}
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  /// Place inside the container and size, in the container's scale.
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
  /// What assistive tools call it; a label's caption follows it there. Empty where the caption says
  /// all.
  std::string AccessibleName;
  /// The same for the elements of a control array on a picture, by the index; may be empty, and
  /// then the caption counts.
  std::function<std::string(std::int16_t index)> AccessibleNameOf;
  /// Where it comes among the labels on a picture for assistive tools: the lowest first, and those
  /// of one array by their index.
  std::int16_t ListOrder = 0;
  /// Topic of the help that tells of the control; 0 for none.
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
  /// After the control has got the keyboard.
  Slot<PlainEvent> GotFocus;

  ControlKind Kind() const { return kind_; }
  const std::string& Name() const { return name_; }
  /// Number in the control array; 0 for a control that stands alone.
  std::int16_t Index() const { return index_; }
  /// The form it stands on; null until it is added to one.
  Form* ParentForm() const { return form_; }
  Control* Container() const { return container_; }
  /// Contained controls from the back to the front.
  const std::vector<Control*>& Children() const { return children_; }
  /// Whether it and all that it stands in are visible.
  bool IsVisible() const;

  /// Begins a drag of this control by the pointer that is down; a drop ends it. Does nothing where
  /// no button is down, or the control is on no form.
  void Drag();
  /// Sets Left and Top, in the container's scale. Any place will do; nothing is clamped.
  void Move(float left, float top);
  /// Puts the control at one end of its container's stack; one on no form stays as it is.
  void ZOrder(StackEnd end);
  /// Gives the control the keyboard, if Form::Focus does.
  void SetFocus();
  /// Asks that the screen shows the control as it is now.
  void Refresh();

  void PropertyChanged(PropertyId id) override;
  /// A control in this one is about to go; only its identity may be used.
  virtual void ChildRemoved(const Control& /*child*/) {}

 protected:
  /// Takes over all that the template has but its index, visibility and place in the stack.
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
