#include "forms/controls.h"

#include <algorithm>

#include "forms/desktop.h"
#include "forms/form.h"

namespace terramark::forms {

void Label::PropertyChanged(PropertyId id) {
  Control::PropertyChanged(id);
  if (id == PropertyId::Caption && AutoSize) FitCaption();
}

void Label::FitCaption() {
  if (Owner() == nullptr) return;
  const TextExtent extent = Owner()->Host.MeasureText(Caption);
  const int border = BorderStyle == Border::FixedSingle ? 2 : 0;
  const bool pixels = Container()->InnerScale == Scale::Pixels;
  const float unitX = pixels ? 1.0F : Owner()->Host.TwipsPerPixelX();
  const float unitY = pixels ? 1.0F : Owner()->Host.TwipsPerPixelY();
  Width = static_cast<float>(extent.Width + border) * unitX;
  Height = static_cast<float>(extent.Height + border) * unitY;
}

void Label::CopyTemplate(const Label& from) {
  CopyCommon(from);
  BorderStyle = from.BorderStyle;
  Alignment = from.Alignment;
  Caption = from.Caption;
  AutoSize = from.AutoSize;
}

void TextBox::Typed(const std::string& text) {
  if (!Enabled) return;
  // A text that an assignment made longer than the limit may be shortened bit by bit.
  const std::size_t limit = MaxLength == 0 ? text.size() : std::max(MaxLength, Text.Get().size());
  Text = text.substr(0, limit);
}

void TextBox::PropertyChanged(PropertyId id) {
  Control::PropertyChanged(id);
  if (id == PropertyId::Text) Change.Raise({Index()});
}

void TextBox::CopyTemplate(const TextBox& from) {
  CopyCommon(from);
  MaxLength = from.MaxLength;
  MultiLine = from.MultiLine;
  Text = from.Text;
  Change = from.Change;
}

void CommandButton::CopyTemplate(const CommandButton& from) {
  CopyCommon(from);
  Caption = from.Caption;
  Click = from.Click;
}

void VScrollBar::Moved(int value) {
  if (!Enabled || (Container() != nullptr && !Container()->Enabled)) return;
  Value = std::clamp(value, Min, Max);
}

void VScrollBar::PropertyChanged(PropertyId id) {
  Control::PropertyChanged(id);
  if (id == PropertyId::Value) Change.Raise({Index()});
}

void VScrollBar::CopyTemplate(const VScrollBar& from) {
  CopyCommon(from);
  Min = from.Min;
  Max = from.Max;
  Value = from.Value;
  Change = from.Change;
}

}  // namespace terramark::forms
