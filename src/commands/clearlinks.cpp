#include "commands/clearlinks.h"

#include <string>

#include "commands/regionstate.h"
#include "document/links.h"
#include "selection/selection.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"

namespace terramark {

namespace {

constexpr char NothingToClear[] = "Nothing to clear";

void ShowCleared(Form1& form, const std::string& name) {
  ShowMessage(form, "all links to " + name + " removed", ClrGreen);
}

void ClearArea(Form1& form) {
  const std::int16_t a = form.CurArea;
  std::int16_t count = 0;
  HiliteAreaLinks(form, count);
  if (count == 0) {
    ShowMessage(form, NothingToClear, ClrGreen);
    return;
  }
  // All Areas, since an Area that `a` does not list may list `a`.
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    form.AreaLinks(i) = WithoutEntry(form.AreaLinks(i), a);
  }
  form.AreaLinks(a) = ClearedLinks;
  RemoveFromRegion(form, a);
  ClearSelection(form);
  ShowCleared(form, form.AreaName(a));
}

void ClearRegion(Form1& form) {
  const std::int16_t r = form.CurRegion;
  std::int16_t count = 0;
  HiliteRegionAreas(form, count);
  if (count == 0) {
    ShowMessage(form, NothingToClear, ClrGreen);
    return;
  }
  ResetRegionColour(form, r);
  ResetRegionName(form, r);
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    if (form.AreaRegion(i) == r) RemoveFromRegion(form, i);
  }
  ClearSelection(form);
  ShowCleared(form, form.RegionName(r));
}

}  // namespace

void ClearLink_MouseUp(Form1& form) {
  if (form.MarkCount == 0) {
    ShowMessage(form, "Select a Area/Region to clear", ClrRed);
  } else if (form.CurArea != 0) {
    ClearArea(form);
  } else if (form.CurRegion != 0) {
    ClearRegion(form);
  }
}

}  // namespace terramark
