#include "commands/addmarkers.h"

#include "document/corner.h"
#include "selection/selection.h"
#include "shell/carddraw.h"
#include "shell/markers.h"

namespace terramark {

namespace {

/// The bottom left corner, so that the fill point of an Area added on the backdrop is where the
/// user pressed.
constexpr std::int16_t NewCorner = 2;

void Show(forms::Label& marker) {
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
  marker.Caption = MarkerCaption(i, NewCorner);
  form.AreaCorner(i) = NewCorner;
  Show(marker);
  form.AreaName(i) = "Area" + NumberText(i);
  form.Countx(0).Caption = NumberText(form.AreaCount);
  form.AreaLinks(i) = "  ";
  form.AreaRegion(i) = 0;
  form.AreaSymbol(i) = DrawCardSymbol(form);
  if (event.Shift == forms::CtrlKey) {
    marker.Move(event.X, event.Y);
  } else {
    const forms::Label& previous = form.ArmyAt(static_cast<std::int16_t>(i - 1));
    marker.Move(previous.Left, previous.Top);
  }
}

void AddCont_MouseUp(Form1& form) {
  if (form.RegionCount >= CountLimit) return;
  const std::int16_t r = ++form.RegionCount;
  form.Continent.Load(r);
  forms::Label& marker = form.Continent(r);
  PaintMarker(marker, ClrWhite);
  form.RegionRGB(r).fill(UnsetComponent);
  marker.Caption = "Region" + NumberText(r);
  Show(marker);
  form.RegionName(r) = marker.Caption;
  form.Countx(1).Caption = NumberText(form.RegionCount);
  form.CurRegion = r;
  form.RegionArmies(r) = NewArmies;
  SelectRegion(form, r);
}

}  // namespace terramark
