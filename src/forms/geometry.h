// From the scales of the controls to the pixels of the screen and back, scrolling and zoom
// included, in one place for all, so that each means the same pixel.
#pragma once

namespace terramark::forms {

class Control;
class Desktop;
class Form;
class PictureBox;

struct PixelPoint {
  int X = 0;
  int Y = 0;

  friend PixelPoint operator+(PixelPoint a, PixelPoint b) { return {a.X + b.X, a.Y + b.Y}; }
  friend PixelPoint operator-(PixelPoint a, PixelPoint b) { return {a.X - b.X, a.Y - b.Y}; }
};

struct PixelRect {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;

  PixelPoint TopLeft() const { return {Left, Top}; }
  bool Contains(PixelPoint at) const {
    return at.X >= Left && at.Y >= Top && at.X < Left + Width && at.Y < Top + Height;
  }
};

/// A place, or a width and height, in the scale of some control's inside.
struct ScalePoint {
  float X = 0;
  float Y = 0;
};

/// Where a control stands inside its container, in pixels of that: of the screen, or of the picture
/// in a picture box, which may be zoomed. Each number is rounded by itself, halves away from 0, and
/// held to 2^24 either way. Of a form, its inside, from 0, 0. A control that is on no form yet
/// counts as placed in pixels.
PixelRect PixelBounds(const Control& control);

/// A pixel of the form's inside as a pixel of a control's own inside, counted from its corner; in a
/// picture box, the pixel of the picture that is seen there. Either may lie outside.
PixelPoint MapFromForm(const Control& control, PixelPoint onForm);
/// Where on the form a pixel of a control's inside begins.
PixelPoint MapToForm(const Control& control, PixelPoint inside);

/// Where the origin of a control's inside stands, in pixels of the form's inside; 0, 0 for the
/// form. Inside a picture box that is the picture's corner, wherever it is scrolled to, so it may
/// lie outside the box.
PixelPoint InnerOrigin(const Control& control);

/// The middle of a control, in pixels of the form's inside.
PixelPoint CentreOnForm(const Control& control);

/// A pixel of a control's inside in the scale of that inside. The control must be on a form.
ScalePoint PixelsToScale(const Control& control, PixelPoint inside);

/// A size in pixels in the scale of a control's container. The control must be on a form.
ScalePoint PixelsToContainerScale(const Control& control, int width, int height);

/// A place or size that was designed in twips, in the scale of a container's inside on a form. The
/// container need not be on the form yet.
ScalePoint TwipsToScale(ScalePoint twips, const Control& container, const Form& form);

/// A length down the screen, from twips to pixels, rounded as in PixelBounds.
int TwipsToPixelsY(Desktop& host, float twips);

/// Where a form's corner stands on the screen, in pixels, rounded as in PixelBounds.
PixelPoint PlaceOnScreen(const Form& form);

/// From pixels of the picture in a box to pixels of the box, and back: where one begins, and which
/// one is seen. Either may lie outside.
PixelPoint MapToBox(const PictureBox& box, PixelPoint onPicture);
PixelPoint MapToPicture(const PictureBox& box, PixelPoint inBox);
/// What a part of the picture covers in the box; in either direction a pixel at least.
PixelRect MapToBox(const PictureBox& box, const PixelRect& onPicture);

}  // namespace terramark::forms
