#include "layoutfile/savelayout.h"

#include <string>

#include "canvas/refreshmap.h"
#include "layoutfile/safefile.h"
#include "layoutfile/writemapfile.h"
#include "shell/backdrop.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/filenames.h"
#include "shell/form1.h"
#include "validation/validatemap.h"

namespace terramark {

namespace {

void ShowWriteFault(Form1& form, const std::string& name) {
  ShowMessage(form, "Cannot write Map Layout File " + name, ClrRed);
}

}  // namespace

void SaveCFG_MouseUp(Form1& form) {
  if (!MapIsValid(form)) return;
  std::string name;
  SelectAFile(form, "*.tml", name);
  if (name.empty()) return;

  const bool pictureRead = RefreshMap(form);
  SafeFile file(form.Host.NativePath(name));
  if (!file.Open()) {
    ShowWriteFault(form, name);
    return;
  }
  const std::string header = form.Text1.Text;
  LayoutText text;
  const bool whole = WriteMapFile(form, text);
  // Clearing the selection blanked the bar; what stopped the writing says so after that.
  if (whole && !pictureRead) ShowPictureFault(form, form.PictureFile);
  // A text that was stopped in mid-file takes its place like any other.
  if (!file.Replace(text.Text())) {
    form.Text1.Text = header;
    ShowWriteFault(form, name);
    return;
  }
  form.LayoutFile = name;
  form.LoadMpa.Caption = name;
}

}  // namespace terramark
