#include "canvas/refreshmap.h"

#include "shell/backdrop.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

forms::Fault RefreshMap(Form1& form) {
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) form.ArmyAt(i).Visible = false;
  forms::Fault fault = ShowPicture(form, form.PictureFile);
  for (std::int16_t r = 1; r <= form.RegionCount; ++r) {
    forms::Label& marker = form.Continent(r);
    marker.Visible = true;
    // The background stays, so that the current Region is seen to be it.
    marker.ForeColor = OwnColour(marker);
  }
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    forms::Label& marker = form.ArmyAt(i);
    Show(marker, Look::Plain);
    marker.Visible = true;
  }
  form.EditText.SetFocus();
  ShowMessage(form, "", ClrGreen);
  if (!fault.empty()) ShowPictureFault(form, form.PictureFile, fault);
  return fault;
}

void RefMap_MouseUp(Form1& form) {
  RefreshMap(form);
}

}  // namespace terramark
