#include "forms/controls.h"

#include <algorithm>

#include "forms/desktop.h"
#include "forms/form.h"
#include "forms/geometry.h"

namespace terramark::forms {

void Label::PropertyChanged(PropertyId id) {
  Control::PropertyChanged(id);
  if (id == PropertyId::Caption && AutoSize) FitCaption();
}

void Label::FitCaption() {
  if (ParentForm() == nullptr) return;
  const TextExtent extent = ParentForm()->Host.MeasureText(Caption);
  const int border = BorderStyle == Border::FixedSingle ? 2 : 0;
  const ScalePoint size =
      PixelsToContainerScale(*this, extent.Width + border, extent.Height + border);
  Width = size.X;
  Height = size.Y;
}

void Label::CopyTemplate(const Label& from) {
  CopyCommon(from);
  BorderStyle = from.BorderStyle;
  AnchorCorner = from.AnchorCorner;
  Alignment = from.Alignment;
  AutoSize = from.AutoSize;
  Caption = from.Caption;
}

void TextBox::Edited(std::size_t at, std::size_t cut, std::string_view insert) {
  if (!Enabled) return;
  std::string text = Text;
  if (MaxLength != 0) {
    // An assignment may have made the text longer than the limit; then nothing can be inserted.
    const std::size_t kept = text.size() - cut;
    insert = insert.substr(0, MaxLength - std::min(MaxLength, kept));
  }
  Text = text.replace(at, cut, insert);
}

void TextBox::SelectAll() {
  // The screen keeps the selection; the control only reports the request.
  Control::PropertyChanged(PropertyId::Selection);
}

void TextBox::PropertyChanged(PropertyId id) {
  Control::PropertyChanged(id);
  if (id == PropertyId::Text) Change.Raise({Index()});
}

void VScrollBar::Moved(int value) {
  if (!Enabled || (Container() != nullptr && !Container()->Enabled)) return;
  Value = std::clamp(value, Min, Max);
}

void VScrollBar::PropertyChanged(PropertyId id) {
  Control::PropertyChanged(id);
  if (id == PropertyId::Value) Change.Raise({Index()});
}

}  // namespace terramark::forms
