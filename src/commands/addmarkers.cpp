#include "commands/addmarkers.h"

#include "commands/regionstate.h"
#include "document/links.h"
#include "document/numbers.h"
#include "selection/selection.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/markers.h"
#include "shell/randomcard.h"

namespace terramark {

namespace {

/// The bottom left corner: then the fill point of an Area added on the backdrop is where the user
/// pressed.
constexpr std::int16_t NewCorner = 2;

void RaiseMarker(forms::Label& marker) {
  marker.ZOrder(forms::StackEnd::Front);
  marker.Visible = true;
}

}  // namespace

void AddTer_MouseUp(Form1& form, const forms::MouseEvent& event) {
  if (form.AreaCount >= CountLimit) return;
  const std::int16_t i = ++form.AreaCount;
  form.ArmyAt.Load(i);
  forms::Label& marker = form.ArmyAt(i);
  PaintMarker(marker, ClrWhite);
  SetCorner(form, i, NewCorner);
  RaiseMarker(marker);
  form.AreaName(i) = "Area" + NumberText(i);
  UpdateAreaCount(form);
  form.AreaLinks(i) = EmptyLinks;
  form.AreaRegion(i) = 0;
  form.AreaSymbol(i) = RandomCardSymbol(form);
  if (event.Shift == forms::CtrlKey) {
    marker.Move(event.X, event.Y);
  } else {
    const forms::Label& previous = form.ArmyAt(static_cast<std::int16_t>(i - 1));
    marker.Move(previous.Left, previous.Top);
  }
  // The keys on the map continue from the new marker.
  form.Picture1.CursorItem = &marker;
  ScrollMarkerIntoView(form, marker);
}

void AddCont_MouseUp(Form1& form) {
  if (form.RegionCount >= CountLimit) return;
  const std::int16_t r = ++form.RegionCount;
  form.Continent.Load(r);
  forms::Label& marker = form.Continent(r);
  ResetRegionColour(form, r);
  ResetRegionName(form, r);
  RaiseMarker(marker);
  UpdateRegionCount(form);
  form.CurRegion = r;
  form.RegionArmies(r) = NewArmies;
  SelectRegion(form, r);
  ScrollMarkerIntoView(form, marker);
}

}  // namespace terramark
