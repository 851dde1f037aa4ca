#include "shell/controltable.h"

#include "forms/geometry.h"

namespace terramark {

void SetCaption(forms::Control& control, const std::string& caption) {
  switch (control.Kind()) {
    case forms::ControlKind::Label:
      static_cast<forms::Label&>(control).Caption = caption;
      break;
    case forms::ControlKind::CommandButton:
      static_cast<forms::CommandButton&>(control).Caption = caption;
      break;
    case forms::ControlKind::Frame:
      static_cast<forms::Frame&>(control).Caption = caption;
      break;
    default:
      break;
  }
}

const char* AccessibleNameIn(const forms::Control& control, const char* caption, const char* name) {
  return control.Kind() == forms::ControlKind::CommandButton ? caption : name;
}

void PlaceControl(forms::Form& form, forms::Control& control, forms::Control& container, float left,
                  float top, float width, float height) {
  const forms::ScalePoint corner = forms::TwipsToScale({left, top}, container, form);
  const forms::ScalePoint size = forms::TwipsToScale({width, height}, container, form);
  control.Move(corner.X, corner.Y);
  control.Width = size.X;
  control.Height = size.Y;
  const bool field = control.Kind() == forms::ControlKind::TextBox ||
                     control.Kind() == forms::ControlKind::PictureBox;
  control.BackColor = field ? forms::SysWindow : forms::SysButtonFace;
  control.ForeColor = forms::SysWindowText;
}

}  // namespace terramark
