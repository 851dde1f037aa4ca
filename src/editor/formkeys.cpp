#include "editor/formkeys.h"

#include "shell/bars.h"
#include "shell/form1.h"

namespace terramark {

namespace {

/// A control without a topic has that of the frame that contains it.
void ShowHelpOnActive(Form1& form) {
  const forms::Control* told = form.ActiveControl();
  while (told != nullptr && told->HelpTopic == 0) told = told->Container();
  ShowHelpTopic(form, (told != nullptr ? *told : form.TMHelp).HelpTopic);
}

void ToggleMapFocus(Form1& form) {
  if (form.ActiveControl() != &form.Picture1) {
    form.FocusBeforeMap = form.ActiveControl();
    form.Focus(&form.Picture1);
    return;
  }
  if (form.FocusBeforeMap != nullptr) form.Focus(form.FocusBeforeMap);
  // That control may not accept the focus any more.
  if (form.ActiveControl() == &form.Picture1) form.Focus(&form.EditText);
}

/// Returns whether the key was one for the zoom.
bool Zoomed(Form1& form, std::int16_t key) {
  forms::PictureBox& box = form.Picture1;
  switch (key) {
    case forms::KeyPlus:
      box.ZoomTo(Larger(box.Zoom), box.ViewCentre());
      return true;
    case forms::KeyMinus:
      box.ZoomTo(Smaller(box.Zoom), box.ViewCentre());
      return true;
    case forms::Key0:
      box.ZoomTo(forms::ActualSize, box.ViewCentre());
      return true;
    case forms::Key9:
      box.ZoomTo(box.FittingZoom(), box.ViewCentre());
      return true;
    default:
      return false;
  }
}

}  // namespace

void Form_KeyDown(Form1& form, forms::KeyEvent& event) {
  // On many keyboards plus needs the Shift key.
  if ((event.Shift & ~forms::ShiftKey) == forms::CtrlKey) {
    event.Handled = Zoomed(form, event.KeyCode);
    return;
  }
  if (event.Shift != 0) return;
  event.Handled = event.KeyCode == forms::KeyF1 || event.KeyCode == forms::KeyF6;
  if (!event.Handled || event.Repeat) return;
  if (event.KeyCode == forms::KeyF1) {
    ShowHelpOnActive(form);
  } else {
    ToggleMapFocus(form);
  }
}

}  // namespace terramark
