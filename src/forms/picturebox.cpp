#include "forms/picturebox.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "forms/borderfill.h"
#include "forms/form.h"
#include "forms/geometry.h"

namespace terramark::forms {

namespace {

/// The picture in the top left corner of a raster of at least its size.
Raster Enlarged(const Raster& picture, int width, int height, std::uint32_t background) {
  if (picture.Width == width && picture.Height == height) return picture;
  Raster image;
  image.Width = width;
  image.Height = height;
  image.Pixels.assign(image.At(0, height), background);
  for (int y = 0; y < picture.Height; ++y) {
    const auto row = picture.Pixels.begin() + static_cast<std::ptrdiff_t>(picture.At(0, y));
    std::copy(row, row + picture.Width,
              image.Pixels.begin() + static_cast<std::ptrdiff_t>(image.At(0, y)));
  }
  return image;
}

}  // namespace

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
  // Built aside: when the memory does not reach for it, the old one stays whole.
  image_ = Enlarged(picture, std::max(picture.Width, BoxWidth()),
                    std::max(picture.Height, BoxHeight()), PixelOf(BackColor));
}

}  // namespace terramark::forms
