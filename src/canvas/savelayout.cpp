#include "canvas/savelayout.h"

#include <string>

#include "canvas/refreshmap.h"
#include "canvas/writemapfile.h"
#include "files/regularfile.h"
#include "files/safefile.h"
#include "layoutfile/layoutreader.h"
#include "shell/backdrop.h"
#include "shell/bars.h"
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
  // The file's name alone: it has only ASCII characters, which the folder may not.
  if (!file.Kept().empty()) {
    rest += ", and the map is kept beside it in " + file.Kept().filename().string();
  }
  ShowFileFault(form, "Cannot write Map Layout File ", name, rest);
}

/// Warns, when loading the layout will not find its picture. By what was saved: a comma ends the
/// picture's name. The message bar stays blank after a save.
void WarnOfLostPicture(Form1& form, const std::string& layout, const std::string& text) {
  LayoutReader saved(text, form);
  if (!saved.ReadHead()) return;
  const std::string& picture = saved.Layout().PictureFile;
  if (files::CanOpenNamedFile(FilePath(form, layout), FilePath(form, picture))) return;
  const std::string title = picture.substr(FolderLength(picture));
  ShowHelpbar(form, "The picture " + title + " does not lie beside this layout");
}

}  // namespace

void SaveCFG_MouseUp(Form1& form) {
  if (!ValidateMap(form)) return;
  std::string name;
  form.CommonDialog1.Purpose = {.Title = "Save a Map Layout", .Saves = true};
  SelectAFile(form, LayoutFiles, name);
  if (name.empty()) return;

  const ShowResult shown = RefreshMap(form);
  files::SafeFile file(FilePath(form, name));
  if (const auto opened = file.Open(); !opened) {
    ShowWriteFault(form, name, file, opened.error());
    return;
  }
  const std::string header = form.Text1.Text;
  const LayoutWritten written = WriteMapFile(form);
  // Clearing the selection has blanked the bar. A message about a stopped writing came after that,
  // and is kept.
  if (written.StoppedAtArea == 0 && !shown) {
    ShowPictureFault(form, form.PictureFile, shown.error());
  }
  // A text that was stopped in the middle replaces the file like any other.
  if (const auto replaced = file.Replace(written.Text); !replaced) {
    form.Text1.Text = header;
    ShowWriteFault(form, name, file, replaced.error());
    return;
  }
  form.LayoutFile = name;
  form.LoadMpa.Caption = name;
  if (shown) WarnOfLostPicture(form, name, written.Text);
}

}  // namespace terramark
