#include "shell/backdrop.h"

#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"

namespace terramark {

forms::Picture LoadPicture(Form1& form, const std::string& path) {
  return form.Host.LoadPicture(path, form.Picture1.BoxWidth(), form.Picture1.BoxHeight());
}

void ShowPictureFault(Form1& form, const std::string& path) {
  ShowMessage(form, "Cannot read picture " + path, ClrRed);
}

}  // namespace terramark
