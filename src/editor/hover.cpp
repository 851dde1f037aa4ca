#include "editor/hover.h"

#include "canvas/markermouse.h"
#include "shell/bars.h"
#include "shell/form1.h"

namespace terramark {

namespace {

/// Of the labels only the two bars: the others are captions of other controls.
bool BlanksHelpbar(const Form1& form, const forms::Control& control) {
  switch (control.Kind()) {
    case forms::ControlKind::CommandButton:
    case forms::ControlKind::TextBox:
    case forms::ControlKind::PictureBox:
    case forms::ControlKind::Form:
      return true;
    case forms::ControlKind::Label:
      return &control == &form.Message || &control == &form.Helpbar;
    case forms::ControlKind::Frame:
    case forms::ControlKind::VScrollBar:
      break;
  }
  return false;
}

/// The help bar shows the Tag of a control, and that of these is always empty.
void ConnectBlank(Form1& form, forms::Control& control) {
  if (!BlanksHelpbar(form, control)) return;
  control.MouseMove = [&form](const forms::MouseEvent&) { ShowHelpbar(form, ""); };
}

}  // namespace

void ConnectHover(Form1& form) {
  ConnectBlank(form, form);
  for (forms::Control* control : form.Controls()) ConnectBlank(form, *control);
  form.ArmyAt(0).MouseMove = [&form](const auto& event) { ArmyAt_MouseMove(form, event); };
  form.Continent(0).MouseMove = [&form](const auto& event) { Continent_MouseMove(form, event); };
}

}  // namespace terramark
