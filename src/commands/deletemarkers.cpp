#include "commands/deletemarkers.h"

#include <string>

#include "document/links.h"
#include "document/numbers.h"
#include "selection/selection.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/questions.h"

namespace terramark {

namespace {

/// Whether an Area has neighbours of its own or another Area lists it.
bool IsLinked(const Form1& form, std::int16_t area) {
  if (LinkCount(form.AreaLinks(area)) != 0) return true;
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    if (IsNeighbour(form, i, area) != 0) return true;
  }
  return false;
}

void DeleteArea(Form1& form) {
  const std::int16_t last = form.AreaCount;
  if (form.CurArea != last) {
    ShowMessage(form, "Can only delete the last Area - " + form.AreaName(last), ClrRed);
    return;
  }
  std::int16_t count = 0;
  HiliteAreaLinks(form, count);
  // The Area may not be shown as current any more, and a link may exist on one side only.
  if (count != 0 || IsLinked(form, last)) {
    ShowMessage(form, "Must clear all links before deleting a Area", ClrRed);
    return;
  }
  if (!Confirm(form, "delete Area#" + NumberText(last))) return;
  form.ArmyAt.Unload(last);
  ShowMessage(form, form.AreaName(last) + " deleted", ClrGreen);
  form.AreaRegion(last) = 0;
  --form.AreaCount;
  UpdateCounts(form);
}

/// Region k gets everything of Region k + 1, except for the background, which shows the mark.
void CopyFromNext(Form1& form, std::int16_t k) {
  const auto next = static_cast<std::int16_t>(k + 1);
  forms::Label& marker = form.Continent(k);
  const forms::Label& from = form.Continent(next);
  marker.Caption = from.Caption;
  marker.Tag = from.Tag;
  marker.ForeColor = from.ForeColor;
  marker.Move(from.Left, from.Top);
  form.Regions(k) = form.Regions(next);
}

void CloseGap(Form1& form) {
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    if (form.AreaRegion(i) > form.CurRegion) --form.AreaRegion(i);
  }
  for (std::int16_t k = form.CurRegion; k < form.RegionCount; ++k) CopyFromNext(form, k);
  form.CurRegion = form.RegionCount;
}

void DeleteRegion(Form1& form) {
  std::int16_t count = 0;
  HiliteRegionAreas(form, count);
  if (count != 0) {
    ShowMessage(form, "Must clear all links before deleting a Region", ClrRed);
    return;
  }
  if (!Confirm(form, "delete Region#" + NumberText(form.CurRegion))) return;
  const std::string name = form.RegionName(form.CurRegion);
  if (form.CurRegion < form.RegionCount) CloseGap(form);
  // After a deletion the current number may be above the count.
  if (form.CurRegion != form.RegionCount) return;
  form.Continent.Unload(form.RegionCount);
  ShowMessage(form, name + " deleted", ClrGreen);
  --form.RegionCount;
  UpdateCounts(form);
}

}  // namespace

void DelControl_MouseUp(Form1& form) {
  if (form.MarkCount == 0) {
    ShowMessage(form, "Select a Area/Region to delete", ClrRed);
  } else if (form.CurArea != 0) {
    DeleteArea(form);
  } else if (form.CurRegion != 0) {
    DeleteRegion(form);
  }
}

}  // namespace terramark
