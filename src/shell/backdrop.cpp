#include "shell/backdrop.h"

#include <new>

#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/filefault.h"
#include "shell/form1.h"

namespace terramark {

namespace {

/// Clears the message bar if it still reports an earlier picture.
void ClearPictureFault(Form1& form) {
  if (form.PictureFaultShown) ShowMessage(form, "", ClrGreen);
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
  ClearPictureFault(form);
  return {};
}

ShowResult ShowNewPicture(Form1& form, const std::string& path) {
  ShowResult shown = ShowPicture(form, path);
  if (shown) form.Picture1.ZoomTo(forms::ActualSize, {});
  return shown;
}

void ShowPictureFault(Form1& form, const std::string& path, const std::string& fault) {
  ShowFileFault(form, "Cannot read picture ", path, ": " + fault);
  form.PictureFaultShown = true;
}

void ShowNameFault(Form1& form, const std::string& name) {
  ShowFileFault(form, "Cannot use this file name in a Map Layout: ", name,
                " (not all its letters fit)");
  form.PictureFaultShown = true;
}

}  // namespace terramark
