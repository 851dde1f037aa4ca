#include "forms/geometry.h"

#include <algorithm>
#include <cmath>

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/picturebox.h"

namespace terramark::forms {

namespace {

/// No screen is so large. Places from a file are limited to it, so that sums of them cannot
/// overflow.
constexpr float FarthestPixel = 1 << 24;

int NearestPixel(float pixels) {
  return static_cast<int>(std::lround(std::clamp(pixels, -FarthestPixel, FarthestPixel)));
}

/// The size of a pixel of the form's screen in a scale.
ScalePoint PixelIn(Scale scale, const Form* form) {
  if (scale == Scale::Pixels || form == nullptr) return {1.0F, 1.0F};
  return {form->Host.TwipsPerPixelX(), form->Host.TwipsPerPixelY()};
}

/// The scale in which a control is placed; a form is placed on the screen in twips.
Scale OuterScale(const Control& control) {
  return control.Container() == nullptr ? Scale::Twips : control.Container()->InnerScale;
}

}  // namespace

PixelRect PixelBounds(const Control& control) {
  const ScalePoint pixel = PixelIn(OuterScale(control), control.ParentForm());
  const bool outermost = control.Container() == nullptr;
  return {outermost ? 0 : NearestPixel(control.Left / pixel.X),
          outermost ? 0 : NearestPixel(control.Top / pixel.Y),
          NearestPixel(control.Width / pixel.X), NearestPixel(control.Height / pixel.Y)};
}

PixelRect DisplayBounds(const Control& control) {
  PixelRect bounds = PixelBounds(control);
  const Control* const container = control.Container();
  if (control.Kind() != ControlKind::Label || container == nullptr ||
      container->Kind() != ControlKind::PictureBox) {
    return bounds;
  }
  const Magnification zoom = static_cast<const PictureBox&>(*container).Zoom;
  if (zoom.Picture == 1) return bounds;
  const Corner anchor = static_cast<const Label&>(control).AnchorCorner;
  const PixelPoint more{(zoom.Picture - 1) * bounds.Width, (zoom.Picture - 1) * bounds.Height};
  if (anchor.Right) bounds.Left -= more.X;
  if (anchor.Bottom) bounds.Top -= more.Y;
  bounds.Width += more.X;
  bounds.Height += more.Y;
  return bounds;
}

PixelPoint MapFromForm(const Control& control, PixelPoint onForm) {
  if (control.Container() == nullptr) return onForm;
  const PixelPoint in = MapFromForm(*control.Container(), onForm) - PixelBounds(control).TopLeft();
  if (control.Kind() != ControlKind::PictureBox) return in;
  return MapToPicture(static_cast<const PictureBox&>(control), in);
}

PixelPoint MapToForm(const Control& control, PixelPoint inside) {
  if (control.Container() == nullptr) return inside;
  if (control.Kind() == ControlKind::PictureBox) {
    inside = MapToBox(static_cast<const PictureBox&>(control), inside);
  }
  return MapToForm(*control.Container(), PixelBounds(control).TopLeft() + inside);
}

PixelPoint InnerOrigin(const Control& control) {
  return MapToForm(control, {});
}

PixelPoint CentreOnForm(const Control& control) {
  const PixelRect bounds = DisplayBounds(control);
  const PixelPoint middle = bounds.TopLeft() + PixelPoint{bounds.Width / 2, bounds.Height / 2};
  return control.Container() == nullptr ? middle : MapToForm(*control.Container(), middle);
}

ScalePoint PixelsToScale(const Control& control, PixelPoint inside) {
  const ScalePoint pixel = PixelIn(control.InnerScale, control.ParentForm());
  return {static_cast<float>(inside.X) * pixel.X, static_cast<float>(inside.Y) * pixel.Y};
}

ScalePoint PixelsToContainerScale(const Control& control, int width, int height) {
  const ScalePoint pixel = PixelIn(OuterScale(control), control.ParentForm());
  return {static_cast<float>(width) * pixel.X, static_cast<float>(height) * pixel.Y};
}

ScalePoint TwipsToScale(ScalePoint twips, const Control& container, const Form& form) {
  if (container.InnerScale == Scale::Twips) return twips;
  const ScalePoint pixel = PixelIn(Scale::Twips, &form);
  return {twips.X / pixel.X, twips.Y / pixel.Y};
}

int TwipsToPixelsY(Desktop& host, float twips) {
  return NearestPixel(twips / host.TwipsPerPixelY());
}

PixelPoint PlaceOnScreen(const Form& form) {
  const ScalePoint pixel = PixelIn(Scale::Twips, &form);
  return {NearestPixel(form.Left / pixel.X), NearestPixel(form.Top / pixel.Y)};
}

PixelPoint MapToBox(const PictureBox& box, PixelPoint onPicture) {
  return {ToScreen(box.Zoom, onPicture.X) - box.ScrollLeft,
          ToScreen(box.Zoom, onPicture.Y) - box.ScrollTop};
}

PixelPoint MapToPicture(const PictureBox& box, PixelPoint inBox) {
  return {ToPicture(box.Zoom, inBox.X + box.ScrollLeft),
          ToPicture(box.Zoom, inBox.Y + box.ScrollTop)};
}

PixelRect MapToBox(const PictureBox& box, const PixelRect& onPicture) {
  const PixelPoint corner = MapToBox(box, onPicture.TopLeft());
  const PixelPoint end =
      MapToBox(box, onPicture.TopLeft() + PixelPoint{onPicture.Width, onPicture.Height});
  return {corner.X, corner.Y, std::max(1, end.X - corner.X), std::max(1, end.Y - corner.Y)};
}

}  // namespace terramark::forms
