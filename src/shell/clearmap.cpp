#include "shell/clearmap.h"

#include "document/numbers.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"

namespace terramark {

void ClearMap(Form1& form) {
  for (std::int16_t i = 1; i <= LastNumber; ++i) {
    form.AreaLinks(i) = " ";
    form.RegionName(i) = UnknownName;
    form.AreaName(i) = UnknownName;
    form.RegionArmies(i) = NewArmies;
    form.AreaSymbol(i).clear();
    form.AreaRegion(i) = 0;
  }
  ShowMessage(form, "", ClrGreen);
  form.Text1.Text = "";
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) form.ArmyAt.Unload(i);
  for (std::int16_t r = 1; r <= form.RegionCount; ++r) form.Continent.Unload(r);
  form.AreaCount = 0;
  form.RegionCount = 0;
  form.MarkCount = 0;
  form.ArmyAt(0).Visible = false;
  form.Continent(0).Visible = false;
  for (std::int16_t r = 0; r <= LastNumber; ++r) {
    form.RegionRGB(r) = {UnsetComponent, UnsetComponent, UnsetComponent};
  }
  form.Continent(0).ForeColor = ClrWhite;
  form.Continent(0).Tag = PlainNumber(static_cast<std::int32_t>(ClrWhite));
  form.RGBFrame.Enabled = false;
  UpdateCounts(form);
}

}  // namespace terramark
