#include "forms/geometry.h"

#include <algorithm>
#include <cmath>

#include "forms/form.h"
#include "forms/picturebox.h"

namespace terramark::forms {

namespace {
/// No screen reaches so far; places from a file are held to it, so that sums of them stay small.
constexpr float FarthestPixel = 1 << 24;
}  // namespace

PixelRect PixelBounds(const Control& control) {
  const Control* container = control.Container();
  const bool pixels = container != nullptr && container->InnerScale == Scale::Pixels;
  const Form* form = control.Owner();
  const float unitX = pixels || form == nullptr ? 1.0F : form->Host.TwipsPerPixelX();
  const float unitY = pixels || form == nullptr ? 1.0F : form->Host.TwipsPerPixelY();
  const auto whole = [](float length, float unit) {
    return static_cast<int>(std::lround(std::clamp(length / unit, -FarthestPixel, FarthestPixel)));
  };
  const bool outermost = container == nullptr;
  return {outermost ? 0 : whole(control.Left, unitX), outermost ? 0 : whole(control.Top, unitY),
          whole(control.Width, unitX), whole(control.Height, unitY)};
}

PixelPoint InnerOrigin(const Control& control) {
  PixelPoint origin;
  if (control.Container() != nullptr) {
    origin = InnerOrigin(*control.Container());
    const PixelRect bounds = PixelBounds(control);
    origin.X += bounds.Left;
    origin.Y += bounds.Top;
  }
  if (control.Kind() == ControlKind::PictureBox) {
    const auto& box = static_cast<const PictureBox&>(control);
    origin.X -= box.ScrollLeft;
    origin.Y -= box.ScrollTop;
  }
  return origin;
}

}  // namespace terramark::forms
