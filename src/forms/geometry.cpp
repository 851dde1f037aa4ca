#include "forms/geometry.h"

#include <algorithm>
#include <cmath>

#include "forms/form.h"
#include "forms/picturebox.h"

namespace terramark::forms {

namespace {

/// No screen reaches so far; places from a file are held to it, so that sums of them stay small.
constexpr float FarthestPixel = 1 << 24;

int Whole(float pixels) {
  return static_cast<int>(std::lround(std::clamp(pixels, -FarthestPixel, FarthestPixel)));
}

/// What a pixel of the form's screen measures in a scale.
ScalePoint PixelIn(Scale scale, const Form* form) {
  if (scale == Scale::Pixels || form == nullptr) return {1.0F, 1.0F};
  return {form->Host.TwipsPerPixelX(), form->Host.TwipsPerPixelY()};
}

/// The scale in which a control is placed; a form stands on the screen in twips.
Scale OuterScale(const Control& control) {
  return control.Container() == nullptr ? Scale::Twips : control.Container()->InnerScale;
}

}  // namespace

PixelRect PixelBounds(const Control& control) {
  const ScalePoint pixel = PixelIn(OuterScale(control), control.Owner());
  const bool outermost = control.Container() == nullptr;
  return {outermost ? 0 : Whole(control.Left / pixel.X),
          outermost ? 0 : Whole(control.Top / pixel.Y), Whole(control.Width / pixel.X),
          Whole(control.Height / pixel.Y)};
}

PixelPoint InnerOrigin(const Control& control) {
  PixelPoint origin;
  if (control.Container() != nullptr) {
    const PixelRect bounds = PixelBounds(control);
    origin = InnerOrigin(*control.Container()) + PixelPoint{bounds.Left, bounds.Top};
  }
  if (control.Kind() != ControlKind::PictureBox) return origin;
  return origin + InBox(static_cast<const PictureBox&>(control), {});
}

PixelPoint Middle(const Control& control) {
  const PixelRect bounds = PixelBounds(control);
  return InnerOrigin(control) + PixelPoint{bounds.Width / 2, bounds.Height / 2};
}

ScalePoint PointInside(const Control& control, PixelPoint at) {
  const PixelPoint inside = at - InnerOrigin(control);
  const ScalePoint pixel = PixelIn(control.InnerScale, control.Owner());
  return {static_cast<float>(inside.X) * pixel.X, static_cast<float>(inside.Y) * pixel.Y};
}

ScalePoint SizeBeside(const Control& control, int width, int height) {
  const ScalePoint pixel = PixelIn(OuterScale(control), control.Owner());
  return {static_cast<float>(width) * pixel.X, static_cast<float>(height) * pixel.Y};
}

ScalePoint FromTwips(ScalePoint twips, const Control& container, const Form& form) {
  if (container.InnerScale == Scale::Twips) return twips;
  const ScalePoint pixel = PixelIn(Scale::Twips, &form);
  return {twips.X / pixel.X, twips.Y / pixel.Y};
}

int PixelsDown(Desktop& host, float twips) {
  return Whole(twips / host.TwipsPerPixelY());
}

PixelPoint PlaceOnScreen(const Form& form) {
  const ScalePoint pixel = PixelIn(Scale::Twips, &form);
  return {Whole(form.Left / pixel.X), Whole(form.Top / pixel.Y)};
}

PixelPoint InBox(const PictureBox& box, PixelPoint onPicture) {
  return onPicture - PixelPoint{box.ScrollLeft, box.ScrollTop};
}

PixelPoint OnPicture(const PictureBox& box, PixelPoint inBox) {
  return inBox + PixelPoint{box.ScrollLeft, box.ScrollTop};
}

}  // namespace terramark::forms
