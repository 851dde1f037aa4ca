#include "shell/backdrop.h"

#include <new>

#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"

namespace terramark {

namespace {

constexpr char PictureFault[] = "Cannot read picture ";
constexpr char NameFault[] = "Cannot use this file name in a Map Layout: ";

/// Takes what was said of an earlier picture off the bar.
void ForgetFaults(Form1& form) {
  const std::string& text = form.Message.Caption;
  const bool ours = text.starts_with(PictureFault) || text.starts_with(NameFault);
  if (ours && form.Message.BackColor == ClrRed) ShowMessage(form, "", ClrGreen);
}

bool LoadBackdrop(Form1& form, const std::string& path) {
  forms::PictureBox& box = form.Picture1;
  const forms::Picture picture = form.Host.LoadPicture(path, box.BoxWidth(), box.BoxHeight());
  if (!picture) return false;
  box.Picture = picture;
  return true;
}

}  // namespace

bool ShowPicture(Form1& form, const std::string& path) {
  try {
    if (!LoadBackdrop(form, path)) return false;
  } catch (const std::bad_alloc&) {
    return false;
  }
  ForgetFaults(form);
  return true;
}

bool ShowNewPicture(Form1& form, const std::string& path) {
  if (!ShowPicture(form, path)) return false;
  form.Picture1.ZoomTo(forms::ActualSize, {});
  return true;
}

void ShowPictureFault(Form1& form, const std::string& path) {
  ShowMessage(form, PictureFault + path, ClrRed);
}

void ShowNameFault(Form1& form, const std::string& name) {
  ShowMessage(form, NameFault + name + " (it has characters that a Map Layout cannot hold)",
              ClrRed);
}

}  // namespace terramark
