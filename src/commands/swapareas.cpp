#include "commands/swapareas.h"

#include <string>
#include <utility>

#include "document/numbers.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

namespace {

/// Stands for the first number while the second is replaced by it; no link string contains this
/// pair.
constexpr char PlaceHolder[] = "XX";

/// Writes the current and the marked Areas to MarkedAreas, from element 1, and returns their
/// number.
int FindMarkedAreas(Form1& form) {
  form.MarkedAreas(1) = 0;
  form.MarkedAreas(2) = 0;
  std::int16_t found = 0;
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    if (MarkerStateOf(form.ArmyAt(i)) != MarkerState::Plain) form.MarkedAreas(++found) = i;
  }
  return found;
}

/// Replaces the first pair that equals `from` in every link string.
void ReplacePair(Form1& form, const std::string& from, const std::string& to) {
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    std::string& links = form.AreaLinks(i);
    for (std::size_t at = 2; at + 2 <= links.size(); at += 2) {
      if (links.compare(at, 2, from) != 0) continue;
      links.replace(at, 2, to);
      break;
    }
  }
}

void SwapPlaces(forms::Label& first, forms::Label& second) {
  const float left = first.Left;
  const float top = first.Top;
  first.Move(second.Left, second.Top);
  second.Move(left, top);
}

/// Updates an Area's marker to its new Region and corner.
void Repaint(Form1& form, std::int16_t area) {
  forms::Label& marker = form.ArmyAt(area);
  // The colour in which the Region's marker is shown: while it is current that is black.
  PaintMarker(marker, form.Continent(form.AreaRegion(area)).ForeColor, TagForm::WithoutBlank);
  SetCorner(form, area, form.AreaCorner(area));
  marker.Refresh();
}

}  // namespace

void SwapTer_MouseUp(Form1& form) {
  if (form.MarkCount != 2 || FindMarkedAreas(form) < 2) {
    ShowMessage(form, "mark two Areas", ClrRed);
    return;
  }
  const std::int16_t a = form.MarkedAreas(1);
  const std::int16_t b = form.MarkedAreas(2);
  ReplacePair(form, TwoDigit(a), PlaceHolder);
  ReplacePair(form, TwoDigit(b), TwoDigit(a));
  ReplacePair(form, PlaceHolder, TwoDigit(b));
  SwapPlaces(form.ArmyAt(a), form.ArmyAt(b));
  std::swap(form.Areas(a), form.Areas(b));
  // These stay with the number; all else was swapped with the place on the map.
  std::swap(form.AreaName(a), form.AreaName(b));
  std::swap(form.AreaSymbol(a), form.AreaSymbol(b));
  Repaint(form, a);
  Repaint(form, b);
  ShowMessage(form, NumberText(a) + " and " + NumberText(b) + " swapped", ClrGreen);
}

}  // namespace terramark
