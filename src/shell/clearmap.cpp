#include "shell/clearmap.h"

#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

void ClearMap(Form1& form) {
  ClearRows(form);
  ShowMessage(form, "", ClrGreen);
  form.Text1.Text = "";
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) form.ArmyAt.Unload(i);
  for (std::int16_t r = 1; r <= form.RegionCount; ++r) form.Continent.Unload(r);
  form.AreaCount = 0;
  form.RegionCount = 0;
  form.MarkCount = 0;
  form.ArmyAt(0).Visible = false;
  form.Continent(0).Visible = false;
  SetOwnColour(form.Continent(0), ClrWhite, TagForm::WithoutBlank);
  form.RGBFrame.Enabled = false;
  UpdateCounts(form);
}

}  // namespace terramark
