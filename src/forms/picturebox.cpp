#include "forms/picturebox.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <utility>

#include "forms/borderfill.h"
#include "forms/form.h"
#include "forms/geometry.h"

namespace terramark::forms {

namespace {

/// The picture in the top left corner of a larger raster.
Raster Enlarged(const Raster& picture, int width, int height, std::uint32_t background) {
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
  const bool tall = Image().Height > BoxHeight();
  return Image().Width > BoxWidth() - (tall ? ScrollBarExtent : 0) && Image().Width > 0 &&
         (Image().Width > BoxWidth() || tall);
}

bool PictureBox::ScrollsDown() const {
  const bool wide = Image().Width > BoxWidth();
  return Image().Height > BoxHeight() - (wide ? ScrollBarExtent : 0) && Image().Height > 0 &&
         (Image().Height > BoxHeight() || wide);
}

int PictureBox::ViewWidth() const {
  return BoxWidth() - (ScrollsDown() ? ScrollBarExtent : 0);
}

int PictureBox::ViewHeight() const {
  return BoxHeight() - (ScrollsAcross() ? ScrollBarExtent : 0);
}

void PictureBox::ScrollTo(int left, int top) {
  ScrollLeft = std::clamp(left, 0, std::max(0, Image().Width - ViewWidth()));
  ScrollTop = std::clamp(top, 0, std::max(0, Image().Height - ViewHeight()));
}

void PictureBox::FillToBorder(std::span<const PixelPoint> seeds, Color border) {
  const Raster& image = Image();
  const auto opens = [&](PixelPoint at) {
    return PixelRect{0, 0, image.Width, image.Height}.Contains(at) &&
           image.Pixels[image.At(at.X, at.Y)] != PixelOf(border);
  };
  if (std::ranges::none_of(seeds, opens)) return;
  try {
    if (own_) return BorderFill(*own_, seeds, FillColor, border);
    Raster painted = *Picture.Get();
    BorderFill(painted, seeds, FillColor, border);
    own_ = std::move(painted);
  } catch (const std::bad_alloc&) {
  }
}

void PictureBox::PropertyChanged(PropertyId id) {
  if (id != PropertyId::Picture && id != PropertyId::Width && id != PropertyId::Height) {
    return Control::PropertyChanged(id);
  }
  std::optional<Raster> old = std::exchange(own_, Padded());
  try {
    ScrollTo(ScrollLeft, ScrollTop);
    Control::PropertyChanged(id);
  } catch (...) {
    // The assignment is taken back, and the image stays that of the old value.
    own_ = std::move(old);
    throw;
  }
}

std::optional<Raster> PictureBox::Padded() const {
  const Raster empty;
  const Raster& picture = Picture.Get() ? *Picture.Get() : empty;
  if (Picture.Get() && picture.Width >= BoxWidth() && picture.Height >= BoxHeight()) {
    return std::nullopt;
  }
  return Enlarged(picture, std::max(picture.Width, BoxWidth()),
                  std::max(picture.Height, BoxHeight()), PixelOf(BackColor));
}

}  // namespace terramark::forms
