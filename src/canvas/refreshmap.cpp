#include "canvas/refreshmap.h"

#include <string>

#include "shell/backdrop.h"
#include "shell/bars.h"
#include "shell/filenames.h"
#include "shell/markers.h"

namespace terramark {

bool RefreshMap(Form1& form) {
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) form.ArmyAt(i).Visible = false;
  const bool readable = ShowPicture(form, form.PictureFile);
  for (std::int16_t r = 1; r <= form.RegionCount; ++r) {
    forms::Label& marker = form.Continent(r);
    marker.Visible = true;
    marker.ForeColor = TagColour(marker);
  }
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    forms::Label& marker = form.ArmyAt(i);
    marker.BackColor = ClrBlack;
    marker.ForeColor = TagColour(marker);
    marker.Visible = true;
  }
  form.EditText.SetFocus();
  ShowMessage(form, "", ClrGreen);
  if (!readable) ShowPictureFault(form, form.PictureFile);
  return readable;
}

void RefMap_MouseUp(Form1& form) {
  RefreshMap(form);
}

void LoadMap_MouseUp(Form1& form) {
  std::string path;
  SelectAFile(form, "*.wmf;*.bmp", path);
  if (path.empty()) return;
  const forms::CommonDialog& chosen = form.CommonDialog1;
  if (!chosen.FileNameFits && !chosen.FileTitleFits) {
    ShowNameFault(form, path);
    return;
  }
  if (!ShowPicture(form, path)) {
    ShowPictureFault(form, path);
    return;
  }
  form.Host.EnterFolderOf(path);
  form.PictureFile = chosen.FileNameFits ? path : chosen.FileTitle;
  form.LoadMap.Caption = form.PictureFile;
  UpdateCounts(form);
}

}  // namespace terramark
