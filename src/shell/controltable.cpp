#include "shell/controltable.h"

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

void PlaceControl(forms::Form& form, forms::Control& control, forms::Control& container, float left,
                  float top, float width, float height) {
  const bool pixels = container.InnerScale == forms::Scale::Pixels;
  const float unitX = pixels ? form.Host.TwipsPerPixelX() : 1.0F;
  const float unitY = pixels ? form.Host.TwipsPerPixelY() : 1.0F;
  control.Move(left / unitX, top / unitY);
  control.Width = width / unitX;
  control.Height = height / unitY;
  const bool field = control.Kind() == forms::ControlKind::TextBox ||
                     control.Kind() == forms::ControlKind::PictureBox;
  control.BackColor = field ? forms::SysWindow : forms::SysButtonFace;
  control.ForeColor = forms::SysWindowText;
}

}  // namespace terramark
