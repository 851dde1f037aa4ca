#include "validation/cvalid.h"

#include <algorithm>
#include <cmath>

#include "document/corner.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "validation/validatemap.h"

namespace terramark {

namespace {

/// Nearest pixel, a tie to the even one; what no picture reaches stays out of reach.
int PixelAt(float place) {
  constexpr float OutOfReach = 1 << 24;
  return static_cast<int>(std::lrint(std::clamp(place, -OutOfReach, OutOfReach)));
}

void FloodFrom(Form1& form, std::int16_t area) {
  const forms::Label& marker = form.ArmyAt(area);
  const std::int16_t corner = form.AreaCorner(area);
  const float x = marker.Left + (AtRight(corner) ? marker.Width : 0.0F);
  const float y = marker.Top + (AtBottom(corner) ? marker.Height : 0.0F);
  form.Picture1.FillColor = ClrRed;
  form.Picture1.FillToBorder(PixelAt(x), PixelAt(y), ClrBlack);
}

}  // namespace

void Cvalid_MouseUp(Form1& form) {
  if (!MapIsValid(form)) return;
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) FloodFrom(form, i);
  form.Picture1.Refresh();
}

}  // namespace terramark
