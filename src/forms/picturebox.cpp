#include "forms/picturebox.h"

#include <algorithm>
#include <cstddef>

#include "forms/borderfill.h"
#include "forms/form.h"
#include "forms/geometry.h"

namespace terramark::forms {

int PictureBox::BoxWidth() const {
  return PixelBounds(*this).Width;
}

int PictureBox::BoxHeight() const {
  return PixelBounds(*this).Height;
}

// A bar for one way takes room from the other, which can call for the second bar.
bool PictureBox::ScrollsAcross() const {
  const bool tall = image_.Height > BoxHeight();
  return image_.Width > BoxWidth() - (tall ? ScrollBarExtent : 0) && image_.Width > 0 &&
         (image_.Width > BoxWidth() || tall);
}

bool PictureBox::ScrollsDown() const {
  const bool wide = image_.Width > BoxWidth();
  return image_.Height > BoxHeight() - (wide ? ScrollBarExtent : 0) && image_.Height > 0 &&
         (image_.Height > BoxHeight() || wide);
}

int PictureBox::ViewWidth() const {
  return BoxWidth() - (ScrollsDown() ? ScrollBarExtent : 0);
}

int PictureBox::ViewHeight() const {
  return BoxHeight() - (ScrollsAcross() ? ScrollBarExtent : 0);
}

void PictureBox::ScrollTo(int left, int top) {
  ScrollLeft = std::clamp(left, 0, std::max(0, image_.Width - ViewWidth()));
  ScrollTop = std::clamp(top, 0, std::max(0, image_.Height - ViewHeight()));
}

void PictureBox::FillToBorder(int x, int y, Color border) {
  BorderFill(image_, x, y, FillColor, border);
}

void PictureBox::PropertyChanged(PropertyId id) {
  if (id == PropertyId::Picture || id == PropertyId::Width || id == PropertyId::Height) {
    RebuildImage();
    ScrollTo(ScrollLeft, ScrollTop);
  }
  Control::PropertyChanged(id);
}

void PictureBox::RebuildImage() {
  const Raster empty;
  const Raster& picture = Picture.Get() ? *Picture.Get() : empty;
  image_.Width = std::max(picture.Width, BoxWidth());
  image_.Height = std::max(picture.Height, BoxHeight());
  if (picture.Width == image_.Width && picture.Height == image_.Height) {
    image_.Pixels = picture.Pixels;
    return;
  }
  image_.Pixels.assign(image_.At(0, image_.Height), PixelOf(BackColor));
  for (int y = 0; y < picture.Height; ++y) {
    const auto row = picture.Pixels.begin() + static_cast<std::ptrdiff_t>(picture.At(0, y));
    std::copy(row, row + picture.Width,
              image_.Pixels.begin() + static_cast<std::ptrdiff_t>(image_.At(0, y)));
  }
}

}  // namespace terramark::forms
