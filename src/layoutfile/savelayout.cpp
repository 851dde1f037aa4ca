#include "layoutfile/savelayout.h"

#include <string>

#include "canvas/refreshmap.h"
#include "layoutfile/safefile.h"
#include "layoutfile/writemapfile.h"
#include "shell/backdrop.h"
#include "shell/filefault.h"
#include "shell/filenames.h"
#include "shell/form1.h"
#include "validation/validatemap.h"

namespace terramark {

namespace {

void ShowWriteFault(Form1& form, const std::string& name, const SafeFile& file) {
  std::string rest = ": " + file.Why();
  if (file.Damaged()) rest += "; the old file is damaged";
  // The name alone: it is plain in any encoding, which the folder's need not be.
  if (!file.Kept().empty()) {
    rest += ", and the map is kept beside it in " + file.Kept().filename().string();
  }
  ShowFileFault(form, "Cannot write Map Layout File ", name, rest);
}

}  // namespace

void SaveCFG_MouseUp(Form1& form) {
  if (!MapIsValid(form)) return;
  std::string name;
  form.CommonDialog1.Purpose = {.Title = "Save a Map Layout", .Saves = true};
  SelectAFile(form, LayoutFiles, name);
  if (name.empty()) return;

  const forms::Fault fault = RefreshMap(form);
  SafeFile file(form.Host.NativePath(name));
  if (!file.Open()) {
    ShowWriteFault(form, name, file);
    return;
  }
  const std::string header = form.Text1.Text;
  LayoutText text;
  const bool whole = WriteMapFile(form, text);
  // Clearing the selection blanked the bar; what stopped the writing says so after that.
  if (whole && !fault.empty()) ShowPictureFault(form, form.PictureFile, fault);
  // A text that was stopped in mid-file takes its place like any other.
  if (!file.Replace(text.Text())) {
    form.Text1.Text = header;
    ShowWriteFault(form, name, file);
    return;
  }
  form.LayoutFile = name;
  form.LoadMpa.Caption = name;
}

}  // namespace terramark
