#include "canvas/refreshmap.h"

#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

ShowResult RefreshMap(Form1& form) {
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) form.ArmyAt(i).Visible = false;
  ShowResult shown = ShowPicture(form, form.PictureFile);
  for (std::int16_t r = 1; r <= form.RegionCount; ++r) {
    forms::Label& marker = form.Continent(r);
    marker.Visible = true;
    // The background stays, so that the current Region remains visible as such.
    marker.ForeColor = OwnColour(marker);
  }
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    forms::Label& marker = form.ArmyAt(i);
    Show(marker, MarkerState::Plain);
    marker.Visible = true;
  }
  form.EditText.SetFocus();
  ShowMessage(form, "", ClrGreen);
  if (!shown) ShowPictureFault(form, form.PictureFile, shown.error());
  return shown;
}

void RefMap_MouseUp(Form1& form) {
  RefreshMap(form);
}

}  // namespace terramark
