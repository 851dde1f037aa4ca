#include "shell/backdrop.h"

#include <new>

#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/filefault.h"
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

forms::Fault LoadBackdrop(Form1& form, const std::string& path) {
  forms::PictureBox& box = form.Picture1;
  const auto loaded = form.Host.LoadPicture(path, box.BoxWidth(), box.BoxHeight());
  if (loaded.Picture) box.Picture = loaded.Picture;
  return loaded.Fault;
}

}  // namespace

forms::Fault ShowPicture(Form1& form, const std::string& path) {
  try {
    forms::Fault fault = LoadBackdrop(form, path);
    if (!fault.empty()) return fault;
  } catch (const std::bad_alloc&) {
    return "not enough memory";
  }
  ForgetFaults(form);
  return {};
}

forms::Fault ShowNewPicture(Form1& form, const std::string& path) {
  forms::Fault fault = ShowPicture(form, path);
  if (fault.empty()) form.Picture1.ZoomTo(forms::ActualSize, {});
  return fault;
}

void ShowPictureFault(Form1& form, const std::string& path, const forms::Fault& fault) {
  ShowFileFault(form, PictureFault, path, ": " + fault);
}

void ShowNameFault(Form1& form, const std::string& name) {
  ShowFileFault(form, NameFault, name, " (not all its letters fit)");
}

}  // namespace terramark
