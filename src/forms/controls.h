// The plain kinds of control: label, text box, command button, frame, vertical scroll bar.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "forms/control.h"
#include "forms/geometry.h"

namespace terramark::forms {

enum class Alignment { Left, Centred };
enum class Border { None, FixedSingle };
/// How a screen reader learns of a label's new caption.
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
  /// The corner that keeps its place on a picture that is shown below its actual size; see
  /// DisplayBounds.
  Property<Corner> AnchorCorner{*this, PropertyId::AnchorCorner};
  forms::Alignment Alignment = forms::Alignment::Left;
  forms::Announcement Announcement = forms::Announcement::AsName;
  /// Whether the announcement reports a fault.
  bool Alert = false;
  /// The control that the caption names, on the same form; null for none. Like Announcement it is
  /// not copied from a template.
  Control* LabelFor = nullptr;
  /// Width and Height follow the caption, as the font measures it on the screen.
  bool AutoSize = false;

  void PropertyChanged(PropertyId id) override;
  /// Copies element 0 of a control array.
  void CopyTemplate(const Label& from);

 private:
  void FitCaption();
};

class TextBox : public Control {
 public:
  explicit TextBox(std::string name, std::int16_t index = 0)
      : Control(ControlKind::TextBox, std::move(name), index) {}

  Property<std::string> Text{*this, PropertyId::Text};
  /// The most characters that typing may reach; 0 for no limit. Assignments may exceed it.
  std::size_t MaxLength = 0;
  bool MultiLine = false;
  /// Raised by every real change of Text, typed or assigned, before the assignment returns.
  Slot<PlainEvent> Change;

  /// An edit by the user: `cut` characters are removed at the offset `at`, counted from 0, and
  /// `insert` takes their place. Only as much is inserted as MaxLength allows; the rest of the text
  /// is never removed. A disabled box ignores the edit. Offset and cut must be inside the text.
  void Edited(std::size_t at, std::size_t cut, std::string_view insert);

  /// Selects the whole text on the screen, so that typing replaces it.
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

  /// The user moved the thumb to a value, which is limited to Min and Max. A bar that is disabled,
  /// or in a disabled frame, ignores it.
  void Moved(int value);

  void PropertyChanged(PropertyId id) override;
};

}  // namespace terramark::forms
