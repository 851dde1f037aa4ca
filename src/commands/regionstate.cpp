#include "commands/regionstate.h"

#include "document/numbers.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

void ResetRegionColour(Form1& form, std::int16_t region) {
  PaintMarker(form.Continent(region), ClrWhite);
  form.RegionRGB(region).fill(UnsetComponent);
}

void ResetRegionName(Form1& form, std::int16_t region) {
  form.RegionName(region) = "Region" + NumberText(region);
  form.Continent(region).Caption = form.RegionName(region);
}

void RemoveFromRegion(Form1& form, std::int16_t area) {
  PaintMarker(form.ArmyAt(area), ClrWhite);
  form.AreaRegion(area) = 0;
}

}  // namespace terramark
