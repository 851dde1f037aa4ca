// From the scales of the controls to the pixels of the screen, in one place for the window and for
// the pointer, so that both mean the same pixel.
#pragma once

namespace terramark::forms {

class Control;

struct PixelRect {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;

  bool Contains(int x, int y) const {
    return x >= Left && y >= Top && x < Left + Width && y < Top + Height;
  }
};

struct PixelPoint {
  int X = 0;
  int Y = 0;
};

/// Where a control stands inside its container, each number rounded to whole pixels; of a form, its
/// inside, from 0, 0.
PixelRect PixelBounds(const Control& control);

/// Where the origin of a control's inside stands in the form's inside. Inside a picture box that is
/// the picture's corner, wherever it is scrolled to.
PixelPoint InnerOrigin(const Control& control);

}  // namespace terramark::forms
