#include "canvas/canvaskeys.h"

#include "canvas/markerwalk.h"
#include "forms/geometry.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

namespace {

constexpr int FarStep = 10;      // pixels of the picture that a held marker goes with the Shift key
constexpr int KeptOfAPage = 32;  // pixels of the screen that stay in view when a page is turned

struct Arrow {
  std::int16_t Key;
  int Across;
  int Down;
};
constexpr Arrow Arrows[] = {{forms::KeyLeftArrow, -1, 0},
                            {forms::KeyRightArrow, 1, 0},
                            {forms::KeyUpArrow, 0, -1},
                            {forms::KeyDownArrow, 0, 1}};

void WalkTo(Form1& form, forms::Label* marker) {
  if (marker == nullptr) return;
  form.Picture1.Ringed = marker;
  BringIntoView(form, *marker);
  form.Pointer.PointKey(*marker);
}

void CarryBy(Form1& form, int across, int down) {
  form.Pointer.Carry(across, down);
  const auto flight = form.Pointer.InFlight();
  const forms::PixelRect size = PixelBounds(flight->Source);
  form.Picture1.Reveal({flight->Corner.X, flight->Corner.Y, size.Width, size.Height});
}

/// However far outside the picture it was.
void CarryIntoView(Form1& form) {
  const auto flight = form.Pointer.InFlight();
  const forms::PixelPoint way =
      OnPicture(form.Picture1, form.Picture1.MiddleOfView()) - flight->Corner;
  CarryBy(form, way.X, way.Y);
}

void Carry(Form1& form, const forms::KeyEvent& event) {
  const int step = event.Shift == forms::ShiftKey ? FarStep : 1;
  for (const Arrow& arrow : Arrows) {
    if (arrow.Key != event.KeyCode) continue;
    CarryBy(form, step * arrow.Across, step * arrow.Down);
    return;
  }
  if (event.KeyCode == forms::KeyHome) {
    CarryIntoView(form);
  } else if (event.KeyCode == forms::KeyReturn && event.Shift == 0 && !event.Repeat) {
    form.Pointer.PutDown();
  }
}

bool Walked(Form1& form, const forms::KeyEvent& event) {
  if (event.Shift != 0) return false;
  switch (event.KeyCode) {
    case forms::KeyLeftArrow:
      WalkTo(form, MarkerFrom(form, form.Picture1.Ringed, -1));
      return true;
    case forms::KeyRightArrow:
      WalkTo(form, MarkerFrom(form, form.Picture1.Ringed, 1));
      return true;
    case forms::KeyHome:
      WalkTo(form, FirstMarker(form));
      return true;
    case forms::KeyEnd:
      WalkTo(form, LastMarker(form));
      return true;
    default:
      return false;
  }
}

bool Scrolled(Form1& form, const forms::KeyEvent& event) {
  const bool back = event.KeyCode == forms::KeyPageUp;
  if (!back && event.KeyCode != forms::KeyPageDown) return false;
  forms::PictureBox& box = form.Picture1;
  const bool across = event.Shift == forms::ShiftKey;
  const int page = (across ? box.ViewWidth() : box.ViewHeight()) - KeptOfAPage;
  const int step = back ? -page : page;
  box.ScrollBy(across ? step : 0, across ? 0 : step);
  return true;
}

/// A press with the mouse on the marker or the backdrop that a key stands for.
struct PressRow {
  std::int16_t Key;
  std::int16_t Shift;
  bool OnMarker;
  std::int16_t Button;
};
constexpr PressRow Presses[] = {
    {forms::KeySpace, 0, true, forms::LeftButton},
    {forms::KeySpace, forms::ShiftKey, true, forms::LeftButton},
    {forms::KeyC, 0, true, forms::RightButton},
    {forms::KeyMenu, 0, true, forms::RightButton},
    {forms::KeyReturn, forms::CtrlKey, false, forms::LeftButton},
    {forms::KeyEscape, 0, false, forms::LeftButton},
};

bool Pressed(Form1& form, const forms::KeyEvent& event) {
  for (const PressRow& row : Presses) {
    if (row.Key != event.KeyCode || row.Shift != event.Shift) continue;
    forms::Control* const target = row.OnMarker ? RingedMarker(form) : &form.Picture1;
    if (target == nullptr || event.Repeat) return true;
    // The map may have been scrolled away from it.
    if (row.OnMarker) BringIntoView(form, *target);
    form.Pointer.PressKey(*target, row.Shift, row.Button);
    return true;
  }
  return false;
}

bool TookHold(Form1& form, const forms::KeyEvent& event) {
  if (event.KeyCode != forms::KeyReturn || event.Shift != 0) return false;
  forms::Control* const marker = RingedMarker(form);
  if (marker == nullptr || event.Repeat) return true;
  BringIntoView(form, *marker);
  form.Pointer.TakeHold(*marker);
  return true;
}

}  // namespace

void Picture1_GotFocus(Form1& form) {
  if (forms::Control* const marker = RingedMarker(form)) form.Pointer.PointKey(*marker);
}

void Picture1_KeyDown(Form1& form, forms::KeyEvent& event) {
  if (event.KeyCode == 0) return;
  if (Scrolled(form, event)) {
    event.Taken = true;
  } else if (form.Pointer.Holds()) {
    // Escape has ended the hold by now; what else a key does, it does not do meanwhile.
    Carry(form, event);
    event.Taken = true;
  } else {
    event.Taken = Walked(form, event) || Pressed(form, event) || TookHold(form, event);
  }
}

}  // namespace terramark
