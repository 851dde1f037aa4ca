#include "canvas/markermouse.h"

#include "canvas/markerdescription.h"
#include "document/corner.h"
#include "document/numbers.h"
#include "selection/selection.h"
#include "shell/bars.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

namespace {

/// Converts twips inside a marker to whole pixels, a tie to the even one. `less` pixels are
/// subtracted before rounding.
std::int16_t WholePixels(float twips, std::int16_t twipsPerPixel, std::int16_t less = 0) {
  return WholeNumber(twips / static_cast<float>(twipsPerPixel) - static_cast<float>(less))
      .value_or(0);
}

void BeginMarkerDrag(Form1& form, forms::Label& marker, const forms::MouseEvent& event) {
  form.DragOffX = WholePixels(event.X, form.TwipsX);
  form.DragOffY = WholePixels(event.Y, form.TwipsY);
  marker.Drag();
}

void TurnCorner(Form1& form, std::int16_t area) {
  const std::int16_t old = form.AreaCorner(area);
  SetCorner(form, area, NextCorner(old));
  // The caption shows a code that is no corner until the next turn.
  if (!IsCorner(old)) form.ArmyAt(area).Caption = MarkerCaption(area, old);
}

/// Moves a marker that was dropped on itself by the distance of the drag; false when that is 0.
bool MoveByTravel(Form1& form, forms::Label& marker, const forms::DropEvent& event) {
  const std::int16_t dx = WholePixels(event.X, form.TwipsX, form.DragOffX);
  const std::int16_t dy = WholePixels(event.Y, form.TwipsY, form.DragOffY);
  if (dx == 0 && dy == 0) return false;
  marker.Move(marker.Left + dx, marker.Top + dy);
  return true;
}

}  // namespace

void ArmyAt_MouseDown(Form1& form, const forms::MouseEvent& event) {
  if (event.Button == forms::RightButton) {
    TurnCorner(form, event.Index);
  } else if (event.Shift != forms::ShiftKey) {
    BeginMarkerDrag(form, form.ArmyAt(event.Index), event);
  }
}

void ArmyAt_MouseUp(Form1& form, const forms::MouseEvent& event) {
  if (event.Button == forms::RightButton) return;
  SelectArea(form, event.Index, event.Shift);
}

void ArmyAt_MouseMove(Form1& form, const forms::MouseEvent& event) {
  ShowHelpbar(form, AreaDescription(form, event.Index));
}

void ArmyAt_DragDrop(Form1& form, const forms::DropEvent& event) {
  forms::Label& marker = form.ArmyAt(event.Index);
  if (&event.Source != &marker) return;
  if (!MoveByTravel(form, marker, event)) SelectArea(form, event.Index, 0);
}

void Continent_MouseDown(Form1& form, const forms::MouseEvent& event) {
  if (event.Shift != forms::ShiftKey) BeginMarkerDrag(form, form.Continent(event.Index), event);
}

void Continent_MouseUp(Form1& form, const forms::MouseEvent& event) {
  SelectRegion(form, event.Index);
}

void Continent_MouseMove(Form1& form, const forms::MouseEvent& event) {
  ShowHelpbar(form, RegionDescription(form, event.Index));
}

void Continent_DragDrop(Form1& form, const forms::DropEvent& event) {
  forms::Label& marker = form.Continent(event.Index);
  if (&event.Source != &marker) return;
  if (!MoveByTravel(form, marker, event)) SelectRegion(form, event.Index);
}

void Picture1_DragDrop(Form1& form, const forms::DropEvent& event) {
  event.Source.Move(event.X - form.DragOffX, event.Y - form.DragOffY);
}

}  // namespace terramark
