#include "canvas/savelayout.h"

#include <string>

#include "canvas/refreshmap.h"
#include "canvas/writemapfile.h"
#include "files/safefile.h"
#include "shell/backdrop.h"
#include "shell/filefault.h"
#include "shell/filenames.h"
#include "shell/form1.h"
#include "shell/validatemap.h"

namespace terramark {

namespace {

void ShowWriteFault(Form1& form, const std::string& name, const files::SafeFile& file,
                    const files::Fault& why) {
  std::string rest = ": " + why.Description();
  if (file.Damaged()) rest += "; the old file is damaged";
  // The name alone: it is plain in any encoding, which the folder's need not be.
  if (!file.Kept().empty()) {
    rest += ", and the map is kept beside it in " + file.Kept().filename().string();
  }
  ShowFileFault(form, "Cannot write Map Layout File ", name, rest);
}

}  // namespace

void SaveCFG_MouseUp(Form1& form) {
  if (!ValidateMap(form)) return;
  std::string name;
  form.CommonDialog1.Purpose = {.Title = "Save a Map Layout", .Saves = true};
  SelectAFile(form, LayoutFiles, name);
  if (name.empty()) return;

  const ShowResult shown = RefreshMap(form);
  files::SafeFile file(form.Host.NativePath(name));
  if (const auto opened = file.Open(); !opened) {
    ShowWriteFault(form, name, file, opened.error());
    return;
  }
  const std::string header = form.Text1.Text;
  const LayoutWritten written = WriteMapFile(form);
  // Clearing the selection blanked the bar; what stopped the writing says so after that.
  if (written.StoppedAtArea == 0 && !shown) {
    ShowPictureFault(form, form.PictureFile, shown.error());
  }
  // A text that was stopped in mid-file takes its place like any other.
  if (const auto replaced = file.Replace(written.Text); !replaced) {
    form.Text1.Text = header;
    ShowWriteFault(form, name, file, replaced.error());
    return;
  }
  form.LayoutFile = name;
  form.LoadMpa.Caption = name;
}

}  // namespace terramark
