#include "forms/zoom.h"

#include <algorithm>
#include <iterator>

namespace terramark::forms {

namespace {

Magnification StepFrom(Magnification zoom, int steps) {
  const auto at = std::ranges::find(ZoomSteps, zoom) - std::begin(ZoomSteps) + steps;
  return ZoomSteps[std::clamp<std::ptrdiff_t>(at, 0, std::ssize(ZoomSteps) - 1)];
}

int FloorDiv(int dividend, int divisor) {
  const int quotient = dividend / divisor;
  return dividend % divisor < 0 ? quotient - 1 : quotient;
}

}  // namespace

Magnification Larger(Magnification zoom) {
  return StepFrom(zoom, 1);
}

Magnification Smaller(Magnification zoom) {
  return StepFrom(zoom, -1);
}

int ToScreen(Magnification zoom, int onPicture) {
  return FloorDiv(onPicture * zoom.Screen + (zoom.Picture - 1) / 2, zoom.Picture);
}

int ToPicture(Magnification zoom, int onScreen) {
  return FloorDiv(onScreen * zoom.Picture + zoom.Picture / 2, zoom.Screen);
}

}  // namespace terramark::forms
