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

PixelPoint Inside(const Control& control, PixelPoint onForm) {
  if (control.Container() == nullptr) return onForm;
  const PixelPoint in = Inside(*control.Container(), onForm) - PixelBounds(control).Corner();
  if (control.Kind() != ControlKind::PictureBox) return in;
  return OnPicture(static_cast<const PictureBox&>(control), in);
}

PixelPoint OnForm(const Control& control, PixelPoint inside) {
  if (control.Container() == nullptr) return inside;
  if (control.Kind() == ControlKind::PictureBox) {
    inside = InBox(static_cast<const PictureBox&>(control), inside);
  }
  return OnForm(*control.Container(), PixelBounds(control).Corner() + inside);
}

PixelPoint InnerOrigin(const Control& control) {
  return OnForm(control, {});
}

PixelPoint Middle(const Control& control) {
  const PixelRect bounds = PixelBounds(control);
  const PixelPoint middle = bounds.Corner() + PixelPoint{bounds.Width / 2, bounds.Height / 2};
  return control.Container() == nullptr ? middle : OnForm(*control.Container(), middle);
}

ScalePoint InScale(const Control& control, PixelPoint inside) {
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
  return {ToScreen(box.Zoom, onPicture.X) - box.ScrollLeft,
          ToScreen(box.Zoom, onPicture.Y) - box.ScrollTop};
}

PixelPoint OnPicture(const PictureBox& box, PixelPoint inBox) {
  return {ToPicture(box.Zoom, inBox.X + box.ScrollLeft),
          ToPicture(box.Zoom, inBox.Y + box.ScrollTop)};
}

PixelRect InBox(const PictureBox& box, const PixelRect& onPicture) {
  const PixelPoint corner = InBox(box, onPicture.Corner());
  const PixelPoint end =
      InBox(box, onPicture.Corner() + PixelPoint{onPicture.Width, onPicture.Height});
  return {corner.X, corner.Y, std::max(1, end.X - corner.X), std::max(1, end.Y - corner.Y)};
}

}  // namespace terramark::forms
