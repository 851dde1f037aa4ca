#include "commands/cvalid.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/markers.h"
#include "shell/validatemap.h"

namespace terramark {

namespace {

/// The nearest pixel, a tie to the even one. A place far outside the picture is limited to a pixel
/// that is still outside.
int NearestPixel(float place) {
  constexpr float OutOfReach = 1 << 24;
  return static_cast<int>(std::lrint(std::clamp(place, -OutOfReach, OutOfReach)));
}

forms::PixelPoint FillPoint(Form1& form, std::int16_t area) {
  const forms::Label& marker = form.ArmyAt(area);
  const forms::Corner corner = FillCorner(form, area);
  return {NearestPixel(marker.Left + (corner.Right ? marker.Width : 0.0F)),
          NearestPixel(marker.Top + (corner.Bottom ? marker.Height : 0.0F))};
}

}  // namespace

void Cvalid_MouseUp(Form1& form) {
  if (!ValidateMap(form)) return;
  std::vector<forms::PixelPoint> points;
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) points.push_back(FillPoint(form, i));
  form.Picture1.FillColor = ClrRed;
  if (!form.Picture1.FillToBorder(points, ClrBlack)) {
    ShowMessage(form, "There is not enough memory to flood the map", ClrRed);
  }
  form.Picture1.Refresh();
}

}  // namespace terramark
