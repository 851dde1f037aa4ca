#include "selection/arrowkeys.h"

#include "selection/selection.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

namespace {

std::int16_t Step(std::int16_t number, std::int16_t keyCode, std::int16_t count) {
  if (keyCode == forms::KeyUpArrow) {
    return number + 1 > count ? std::int16_t{1} : static_cast<std::int16_t>(number + 1);
  }
  return number - 1 < 1 ? count : static_cast<std::int16_t>(number - 1);
}

}  // namespace

void Form_KeyUp(Form1& form, const forms::KeyEvent& event) {
  const std::int16_t key = event.KeyCode;
  if (key != forms::KeyUpArrow && key != forms::KeyDownArrow) return;
  if (form.MarkCount == 0) return;
  // During a drag: the arrow was down already when the drag began.
  if (form.Pointer.HasKeyDrag()) return;
  if (AreaMarker(form, form.CurArea) != nullptr) {
    SelectArea(form, Step(form.CurArea, key, form.AreaCount), 0);
    ScrollMarkerIntoView(form, form.ArmyAt(form.CurArea));
  } else if (RegionMarker(form, form.CurRegion) != nullptr) {
    SelectRegion(form, Step(form.CurRegion, key, form.RegionCount));
    ScrollMarkerIntoView(form, form.Continent(form.CurRegion));
  }
}

}  // namespace terramark
