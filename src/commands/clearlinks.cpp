#include "commands/clearlinks.h"

#include <string>

#include "document/links.h"
#include "document/numbers.h"
#include "selection/selection.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

namespace {

constexpr char NothingToClear[] = "Nothing to clear";

void ShowCleared(Form1& form, const std::string& name) {
  ShowMessage(form, "all links to " + name + " removed", ClrGreen);
}

/// A link string without its entries for an Area; unchanged when no pair spells that Area.
std::string WithoutEntry(const std::string& links, std::int16_t area) {
  const Neighbours entries(links);
  std::string kept;
  bool found = false;
  std::size_t at = 2;
  for (const std::int16_t entry : entries) {
    const std::string pair = at < links.size() ? links.substr(at, 2) : std::string();
    if (pair == TwoDigit(area)) found = true;
    if (entry != area) kept += pair;
    at += 2;
  }
  if (!found) return links;
  if (entries.Count() == 1) return EmptyLinks;
  return TwoDigit(static_cast<std::int16_t>(entries.Count() - 1)) + kept;
}

void ClearArea(Form1& form) {
  const std::int16_t a = form.CurArea;
  std::int16_t count = 0;
  HiliteAreaLinks(form, count);
  if (count == 0) {
    ShowMessage(form, NothingToClear, ClrGreen);
    return;
  }
  // All Areas, since one that a does not list may list a.
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    form.AreaLinks(i) = WithoutEntry(form.AreaLinks(i), a);
  }
  form.AreaLinks(a) = ClearedLinks;
  form.AreaRegion(a) = 0;
  PaintMarker(form.ArmyAt(a), ClrWhite);
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
  PaintMarker(form.Continent(r), ClrWhite);
  form.RegionRGB(r).fill(UnsetComponent);
  form.Continent(r).Caption = "Region" + NumberText(r);
  form.RegionName(r) = form.Continent(r).Caption;
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    if (form.AreaRegion(i) != r) continue;
    PaintMarker(form.ArmyAt(i), ClrWhite);
    form.AreaRegion(i) = 0;
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
