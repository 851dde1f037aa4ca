#include "commands/setregion.h"

#include <vector>

#include "commands/markedareas.h"
#include "commands/regionstate.h"
#include "document/numbers.h"
#include "selection/selection.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

void SetCont_MouseUp(Form1& form) {
  const std::int16_t r = form.CurRegion;
  forms::Label* region = RegionMarker(form, r);
  if (region == nullptr) return;
  ResetRegionColour(form, r);
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    if (form.AreaRegion(i) != r || MarkerStateOf(form.ArmyAt(i)) == MarkerState::Marked) continue;
    RemoveFromRegion(form, i);
  }
  const std::vector<std::int16_t> members = CollectMarkedAreas(form);
  for (const std::int16_t i : members) {
    form.AreaRegion(i) = r;
    CopyRegionColour(form.ArmyAt(i), *region);
  }
  ShowMessage(form,
              "Region " + form.RegionName(r) + " has" +
                  NumberText(static_cast<std::int16_t>(members.size())) + " Areas = <" +
                  NumberList(members) + ">",
              ClrGreen);
  std::int16_t count = 0;
  HiliteRegionAreas(form, count);
}

}  // namespace terramark
