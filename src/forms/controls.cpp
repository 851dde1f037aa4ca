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
  AutoSize = from.AutoSize;
  Caption = from.Caption;
}

void TextBox::Typed(const std::string& text) {
  if (!Enabled) return;
  if (MaxLength == 0 || text.size() <= MaxLength) {
    Text = text;
    return;
  }
  // What stood there keeps its place, also when an assignment made it longer than the limit; what
  // came in between is cut to the room there is.
  const std::string& old = Text;
  const std::size_t shorter = std::min(old.size(), text.size());
  std::size_t head = 0;
  while (head < shorter && old[head] == text[head]) ++head;
  std::size_t tail = 0;
  while (tail < shorter - head && old[old.size() - 1 - tail] == text[text.size() - 1 - tail]) {
    ++tail;
  }
  const std::size_t room = MaxLength - std::min(MaxLength, head + tail);
  const std::string insert = text.substr(head, text.size() - head - tail).substr(0, room);
  Text = text.substr(0, head) + insert + text.substr(text.size() - tail);
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
