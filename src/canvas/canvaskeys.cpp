#include "canvas/canvaskeys.h"

#include "canvas/markerwalk.h"
#include "forms/geometry.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

namespace {

constexpr int LargeStep = 10;    // pixels of the picture that a held marker goes with the Shift key
constexpr int PageOverlap = 32;  // pixels of the screen that stay in view when a page is turned

struct Arrow {
  std::int16_t Key;
  int Across;
  int Down;
};
constexpr Arrow Arrows[] = {{forms::KeyLeftArrow, -1, 0},
                            {forms::KeyRightArrow, 1, 0},
                            {forms::KeyUpArrow, 0, -1},
                            {forms::KeyDownArrow, 0, 1}};

void MoveCursorTo(Form1& form, forms::Label* marker) {
  if (marker == nullptr) return;
  form.Picture1.CursorItem = marker;
  ScrollMarkerIntoView(form, *marker);
  form.Pointer.SimulateHover(*marker);
}

void MoveDragBy(Form1& form, int across, int down) {
  form.Pointer.MoveKeyDrag(across, down);
  form.Picture1.ScrollIntoView(form.Pointer.CurrentDrag()->DisplayBounds());
}

/// Also when it is far outside the picture.
void MoveDragIntoView(Form1& form) {
  const auto drag = form.Pointer.CurrentDrag();
  const forms::PixelPoint way =
      MapToPicture(form.Picture1, form.Picture1.ViewCentre()) - drag->TopLeft;
  MoveDragBy(form, way.X, way.Y);
}

void HandleDragKeys(Form1& form, const forms::KeyEvent& event) {
  const int step = event.Shift == forms::ShiftKey ? LargeStep : 1;
  for (const Arrow& arrow : Arrows) {
    if (arrow.Key != event.KeyCode) continue;
    MoveDragBy(form, step * arrow.Across, step * arrow.Down);
    return;
  }
  if (event.KeyCode == forms::KeyHome) {
    MoveDragIntoView(form);
  } else if (event.KeyCode == forms::KeyReturn && event.Shift == 0 && !event.Repeat) {
    form.Pointer.DropKeyDrag();
  }
}

bool HandleWalkKey(Form1& form, const forms::KeyEvent& event) {
  if (event.Shift != 0) return false;
  switch (event.KeyCode) {
    case forms::KeyLeftArrow:
      MoveCursorTo(form, MarkerFrom(form, form.Picture1.CursorItem, -1));
      return true;
    case forms::KeyRightArrow:
      MoveCursorTo(form, MarkerFrom(form, form.Picture1.CursorItem, 1));
      return true;
    case forms::KeyHome:
      MoveCursorTo(form, FirstMarker(form));
      return true;
    case forms::KeyEnd:
      MoveCursorTo(form, LastMarker(form));
      return true;
    default:
      return false;
  }
}

bool HandleScrollKey(Form1& form, const forms::KeyEvent& event) {
  const bool back = event.KeyCode == forms::KeyPageUp;
  if (!back && event.KeyCode != forms::KeyPageDown) return false;
  forms::PictureBox& box = form.Picture1;
  const bool across = event.Shift == forms::ShiftKey;
  const int page = (across ? box.ViewWidth() : box.ViewHeight()) - PageOverlap;
  const int step = back ? -page : page;
  box.ScrollBy(across ? step : 0, across ? 0 : step);
  return true;
}

/// The control on which a key simulates a press of the mouse.
enum class PressTarget { Marker, Backdrop };
struct PressRow {
  std::int16_t Key;
  std::int16_t Shift;
  PressTarget Target;
  std::int16_t Button;
};
constexpr PressRow Presses[] = {
    {forms::KeySpace, 0, PressTarget::Marker, forms::LeftButton},
    {forms::KeySpace, forms::ShiftKey, PressTarget::Marker, forms::LeftButton},
    {forms::KeyC, 0, PressTarget::Marker, forms::RightButton},
    {forms::KeyMenu, 0, PressTarget::Marker, forms::RightButton},
    {forms::KeyReturn, forms::CtrlKey, PressTarget::Backdrop, forms::LeftButton},
    {forms::KeyEscape, 0, PressTarget::Backdrop, forms::LeftButton},
};

bool HandlePressKey(Form1& form, const forms::KeyEvent& event) {
  for (const PressRow& row : Presses) {
    if (row.Key != event.KeyCode || row.Shift != event.Shift) continue;
    const bool onMarker = row.Target == PressTarget::Marker;
    forms::Control* const target = onMarker ? MarkerAtCursor(form) : &form.Picture1;
    if (target == nullptr || event.Repeat) return true;
    // The map may have been scrolled since, so that the marker is not visible.
    if (onMarker) ScrollMarkerIntoView(form, *target);
    form.Pointer.SimulateClick(*target, row.Shift, row.Button);
    return true;
  }
  return false;
}

bool HandleDragStart(Form1& form, const forms::KeyEvent& event) {
  if (event.KeyCode != forms::KeyReturn || event.Shift != 0) return false;
  forms::Control* const marker = MarkerAtCursor(form);
  if (marker == nullptr || event.Repeat) return true;
  ScrollMarkerIntoView(form, *marker);
  form.Pointer.BeginKeyDrag(*marker);
  return true;
}

}  // namespace

void Picture1_GotFocus(Form1& form) {
  if (forms::Control* const marker = MarkerAtCursor(form)) form.Pointer.SimulateHover(*marker);
}

void Picture1_KeyDown(Form1& form, forms::KeyEvent& event) {
  if (event.KeyCode == 0) return;
  if (HandleScrollKey(form, event)) {
    event.Handled = true;
  } else if (form.Pointer.HasKeyDrag()) {
    // Escape has been handled before, by cancelling the drag. During a drag keys have no other
    // meaning.
    HandleDragKeys(form, event);
    event.Handled = true;
  } else {
    event.Handled =
        HandleWalkKey(form, event) || HandlePressKey(form, event) || HandleDragStart(form, event);
  }
}

}  // namespace terramark
