// Converts between the scales of the controls and the pixels of the screen, including scrolling and
// zoom. All conversions are here, so that all agree on the pixel.
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
  PixelRect MovedBy(PixelPoint way) const { return {Left + way.X, Top + way.Y, Width, Height}; }
  bool Contains(PixelPoint at) const {
    return at.X >= Left && at.Y >= Top && at.X < Left + Width && at.Y < Top + Height;
  }
};

/// A corner of a rectangle; with neither set, the top left one.
struct Corner {
  bool Right = false;
  bool Bottom = false;

  bool operator==(const Corner&) const = default;
};

/// A place, or a width and height, in the scale of a control's inside.
struct ScalePoint {
  float X = 0;
  float Y = 0;
};

/// The place of a control inside its container, in pixels of the screen or, in a picture box, of
/// the picture, which may be zoomed. Each number is rounded by itself, halves away from 0, and
/// limited to 2^24 each way. For a form, its inside, at 0, 0. A control that is on no form yet is
/// taken as placed in pixels.
PixelRect PixelBounds(const Control& control);

/// The part of its container that a control covers on the screen, in the same pixels as
/// PixelBounds, from which it differs only for a label on a picture that is shown below its actual
/// size. Such a label is shown at its own size, so that it can be read and hit, and covers more of
/// the picture; its AnchorCorner stays. It may be outside the picture, by up to 2^29 pixels.
PixelRect DisplayBounds(const Control& control);

/// Maps a pixel of the form's inside to a pixel of a control's inside, counted from its corner. For
/// a picture box that is the pixel of the picture that is visible there. Either may be outside.
PixelPoint MapFromForm(const Control& control, PixelPoint onForm);
/// The place on the form where a pixel of a control's inside begins.
PixelPoint MapToForm(const Control& control, PixelPoint inside);

/// The place of the origin of a control's inside, in pixels of the form's inside; 0, 0 for the
/// form. For a picture box it is the corner of the picture, which may be scrolled out of the box.
PixelPoint InnerOrigin(const Control& control);

/// The centre of what is seen of a control, in pixels of the form's inside.
PixelPoint CentreOnForm(const Control& control);

/// Converts a pixel of a control's inside to the scale of that inside. The control must be on a
/// form.
ScalePoint PixelsToScale(const Control& control, PixelPoint inside);

/// Converts a size in pixels to the scale of a control's container. The control must be on a form.
ScalePoint PixelsToContainerScale(const Control& control, int width, int height);

/// Converts a place or size in twips to the scale of a container's inside on a form. The container
/// need not be on the form yet.
ScalePoint TwipsToScale(ScalePoint twips, const Control& container, const Form& form);

/// Converts a vertical length from twips to pixels, rounded as in PixelBounds.
int TwipsToPixelsY(Desktop& host, float twips);

/// The place of a form's corner on the screen, in pixels, rounded as in PixelBounds.
PixelPoint PlaceOnScreen(const Form& form);

/// Maps pixels of the picture in a box to pixels of the box, where they begin, and back, to the
/// pixel that is visible. Either may be outside.
PixelPoint MapToBox(const PictureBox& box, PixelPoint onPicture);
PixelPoint MapToPicture(const PictureBox& box, PixelPoint inBox);
/// The part of the box that a part of the picture covers; at least one pixel each way.
PixelRect MapToBox(const PictureBox& box, const PixelRect& onPicture);

}  // namespace terramark::forms
