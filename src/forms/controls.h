// The plain kinds of control: label, text box, command button, frame, vertical scroll bar.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "forms/control.h"

namespace terramark::forms {

enum class Alignment { Left, Centred };
enum class Border { None, FixedSingle };
/// How a screen reader is told of a label's new caption.
enum class Announcement {
  AsName,     // as the new name of one thing among others
  OnRequest,  // not at all; it may ask
  AtOnce,     // to be said whatever it is at, and again at each Refresh
};

class Label : public Control {
 public:
  explicit Label(std::string name, std::int16_t index = 0)
      : Control(ControlKind::Label, std::move(name), index) {}

  Property<std::string> Caption{*this, PropertyId::Caption};
  Property<Border> BorderStyle{*this, PropertyId::BorderStyle, Border::None};
  forms::Alignment Alignment = forms::Alignment::Left;
  forms::Announcement Announcement = forms::Announcement::AsName;
  /// Whether what is announced is a fault.
  bool Alert = false;
  /// The control that the caption stands over and names, on the same form; null for none. Like
  /// Announcement it is of one label alone: a template does not hand it on.
  Control* LabelFor = nullptr;
  /// Width and Height follow the caption, by the font's own measure on the screen.
  bool AutoSize = false;

  void PropertyChanged(PropertyId id) override;
  /// Takes over what element 0 of a control array has.
  void CopyTemplate(const Label& from);

 private:
  void FitCaption();
};

class TextBox : public Control {
 public:
  explicit TextBox(std::string name, std::int16_t index = 0)
      : Control(ControlKind::TextBox, std::move(name), index) {}

  Property<std::string> Text{*this, PropertyId::Text};
  /// Characters that typing may reach; 0 for no limit. Assignments are not held to it.
  std::size_t MaxLength = 0;
  bool MultiLine = false;
  /// Raised by every real change of Text, typed or assigned, before the assignment returns.
  Slot<PlainEvent> Change;

  /// An edit by the user: so many characters cut from a place on, counted from 0, and what came in
  /// there instead. What came in is held to the room that MaxLength leaves; what stands beside it
  /// is never pushed out. A disabled box takes nothing. The place and the cut must lie in the text.
  void Edited(std::size_t at, std::size_t cut, std::string_view insert);

  /// Marks the whole text on the screen, so that what is typed next replaces it.
  void SelectAll();

  void PropertyChanged(PropertyId id) override;
};

class CommandButton : public Control {
 public:
  explicit CommandButton(std::string name, std::int16_t index = 0)
      : Control(ControlKind::CommandButton, std::move(name), index) {}

  Property<std::string> Caption{*this, PropertyId::Caption};
  Slot<PlainEvent> Click;
};

class Frame : public Control {
 public:
  explicit Frame(std::string name, std::int16_t index = 0)
      : Control(ControlKind::Frame, std::move(name), index) {}

  Property<std::string> Caption{*this, PropertyId::Caption};
};

class VScrollBar : public Control {
 public:
  explicit VScrollBar(std::string name, std::int16_t index = 0)
      : Control(ControlKind::VScrollBar, std::move(name), index) {}

  int Min = 0;
  int Max = 0;
  /// Min at the top, Max at the bottom.
  Property<int> Value{*this, PropertyId::Value, 0};
  /// Raised by every real change of Value, by the user or assigned, before the assignment returns.
  Slot<PlainEvent> Change;

  /// What the user moved the thumb to, held to Min and Max. A bar that is disabled, or whose frame
  /// is, takes nothing.
  void Moved(int value);

  void PropertyChanged(PropertyId id) override;
};

}  // namespace terramark::forms
