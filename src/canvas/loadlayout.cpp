#include "canvas/loadlayout.h"

#include <string>

#include "canvas/readmapfile.h"
#include "files/regularfile.h"
#include "layoutfile/layoutreader.h"
#include "shell/clearmap.h"
#include "shell/filefault.h"
#include "shell/filenames.h"
#include "shell/form1.h"

namespace terramark {

void LoadMpa_MouseUp(Form1& form) {
  std::string name;
  form.CommonDialog1.Purpose = {.Title = "Load a Map Layout"};
  SelectAFile(form, LayoutFiles, name);
  if (name.empty()) return;
  const auto bytes = files::ReadRegularFile(FilePath(form, name), MaxLayoutBytes);
  if (!bytes) {
    ShowFileFault(form, "Cannot open Map Layout File ", name, ": " + bytes.error().Description());
    return;
  }
  form.LayoutFile = name;
  // The layout may have the picture's name without a folder: then the picture is in the layout's
  // folder.
  form.Host.EnterFolderOf(name);
  ClearMap(form);
  ReadMapFile(form, *bytes);
  form.LoadMpa.Caption = form.LayoutFile;
  form.Picture1.Refresh();
}

}  // namespace terramark
