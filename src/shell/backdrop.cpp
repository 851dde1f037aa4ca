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
void ClearPictureFaults(Form1& form) {
  const std::string& text = form.Message.Caption;
  const bool ours = text.starts_with(PictureFault) || text.starts_with(NameFault);
  if (ours && form.Message.BackColor == ClrRed) ShowMessage(form, "", ClrGreen);
}

ShowResult LoadBackdrop(Form1& form, const std::string& path) {
  forms::PictureBox& box = form.Picture1;
  const auto loaded = form.Host.LoadPicture(path, box.BoxWidth(), box.BoxHeight());
  if (!loaded) return tl::unexpected(loaded.error());
  box.Picture = *loaded;
  return {};
}

}  // namespace

ShowResult ShowPicture(Form1& form, const std::string& path) {
  try {
    if (auto shown = LoadBackdrop(form, path); !shown) return shown;
  } catch (const std::bad_alloc&) {
    return tl::unexpected<std::string>("not enough memory");
  }
  ClearPictureFaults(form);
  return {};
}

ShowResult ShowNewPicture(Form1& form, const std::string& path) {
  ShowResult shown = ShowPicture(form, path);
  if (shown) form.Picture1.ZoomTo(forms::ActualSize, {});
  return shown;
}

void ShowPictureFault(Form1& form, const std::string& path, const std::string& fault) {
  ShowFileFault(form, PictureFault, path, ": " + fault);
}

void ShowNameFault(Form1& form, const std::string& name) {
  ShowFileFault(form, NameFault, name, " (not all its letters fit)");
}

}  // namespace terramark
