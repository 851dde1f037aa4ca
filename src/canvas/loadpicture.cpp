#include "canvas/loadpicture.h"

#include <string>

#include "shell/backdrop.h"
#include "shell/bars.h"
#include "shell/filenames.h"
#include "shell/form1.h"

namespace terramark {

void LoadMap_MouseUp(Form1& form) {
  std::string path;
  form.CommonDialog1.Purpose = {.Title = "Load a Picture"};
  SelectAFile(form, PictureFiles, path);
  if (path.empty()) return;
  const forms::CommonDialog& chosen = form.CommonDialog1;
  if (!chosen.FileNameFits && !chosen.FileTitleFits) {
    ShowNameFault(form, path);
    return;
  }
  if (const ShowResult shown = ShowNewPicture(form, path); !shown) {
    ShowPictureFault(form, path, shown.error());
    return;
  }
  form.Host.EnterFolderOf(path);
  form.PictureFile = chosen.FileNameFits ? path : chosen.FileTitle;
  form.LoadMap.Caption = form.PictureFile;
  UpdateCounts(form);
}

}  // namespace terramark
