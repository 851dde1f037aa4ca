#include "forms/picturebox.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <new>
#include <utility>

#include "forms/borderfill.h"
#include "forms/form.h"
#include "forms/geometry.h"

namespace terramark::forms {

namespace {

constexpr int ScrollMargin = 24;  // pixels of the screen

/// The picture in the top left corner of a larger raster.
Raster PaddedCopy(const Raster& picture, int width, int height, std::uint32_t background) {
  Raster image;
  image.Width = width;
  image.Height = height;
  image.Pixels.assign(image.IndexOf(0, height), background);
  for (int y = 0; y < picture.Height; ++y) {
    const auto row = picture.Pixels.begin() + static_cast<std::ptrdiff_t>(picture.IndexOf(0, y));
    std::copy(row, row + picture.Width,
              image.Pixels.begin() + static_cast<std::ptrdiff_t>(image.IndexOf(0, y)));
  }
  return image;
}

/// How far to scroll until a range is visible with some margin; 0 where it is.
int ScrollDelta(int from, int length, int view) {
  const int ground = std::clamp((view - length) / 2, 0, ScrollMargin);
  const int before = from - ground;
  const int behind = from + length + ground - view;
  // Of a range that is too long the beginning is shown.
  return before < 0 ? before : std::clamp(behind, 0, before);
}

}  // namespace

int PictureBox::BoxWidth() const {
  return PixelBounds(*this).Width;
}

int PictureBox::BoxHeight() const {
  return PixelBounds(*this).Height;
}

/// The picture, or the blank image where there is none. The image may have blank space beside the
/// picture, which needs no scroll bar.
const Raster& PictureBox::DisplayedImage() const {
  return Picture.Get() && Picture.Get()->Width > 0 ? *Picture.Get() : Backdrop();
}

int PictureBox::ZoomedWidth() const {
  return ToScreen(Zoom, DisplayedImage().Width);
}

int PictureBox::ZoomedHeight() const {
  return ToScreen(Zoom, DisplayedImage().Height);
}

/// The scroll bar of one direction reduces the space in the other, which may then need a bar too.
bool PictureBox::ScrollsAcross() const {
  return ZoomedWidth() > BoxWidth() - (ZoomedHeight() > BoxHeight() ? ScrollBarExtent : 0);
}

bool PictureBox::ScrollsDown() const {
  return ZoomedHeight() > BoxHeight() - (ZoomedWidth() > BoxWidth() ? ScrollBarExtent : 0);
}

int PictureBox::ViewWidth() const {
  return BoxWidth() - (ScrollsDown() ? ScrollBarExtent : 0);
}

int PictureBox::ViewHeight() const {
  return BoxHeight() - (ScrollsAcross() ? ScrollBarExtent : 0);
}

void PictureBox::ScrollTo(int left, int top) {
  ScrollLeft = std::clamp(left, 0, std::max(0, ZoomedWidth() - ViewWidth()));
  ScrollTop = std::clamp(top, 0, std::max(0, ZoomedHeight() - ViewHeight()));
}

void PictureBox::ZoomTo(Magnification zoom, PixelPoint about) {
  const Magnification old = Zoom;
  const auto scroll = [&](int out, int at) {
    // In half pixels, so that the middle of a pixel is a whole number.
    const std::int64_t place = 2 * static_cast<std::int64_t>(out + at) + 1;
    const std::int64_t parts = 2 * static_cast<std::int64_t>(old.Screen) * zoom.Picture;
    return static_cast<int>(place * old.Picture * zoom.Screen / parts) - at;
  };
  const PixelPoint to{scroll(ScrollLeft, about.X), scroll(ScrollTop, about.Y)};
  Zoom = zoom;
  ScrollTo(to.X, to.Y);
}

Magnification PictureBox::FittingZoom() const {
  const Raster& image = DisplayedImage();
  const auto fits = [&](Magnification zoom) {
    return ToScreen(zoom, image.Width) <= BoxWidth() && ToScreen(zoom, image.Height) <= BoxHeight();
  };
  const auto largest = std::find_if(std::rbegin(ZoomSteps), std::rend(ZoomSteps), fits);
  return largest != std::rend(ZoomSteps) ? *largest : ZoomSteps[0];
}

void PictureBox::ScrollIntoView(const PixelRect& onPicture) {
  const PixelRect part = MapToBox(*this, onPicture);
  ScrollBy(ScrollDelta(part.Left, part.Width, ViewWidth()),
           ScrollDelta(part.Top, part.Height, ViewHeight()));
}

void PictureBox::FillLayer::PaintRow(int y, int left, int right, std::uint32_t* row) const {
  Pixels.ForEachRun(y, left, right, [&](int begin, int end) {
    std::fill(row + (begin - left), row + (end - left), Paint);
  });
}

Raster PictureBox::Image() const {
  Raster image = Backdrop();
  if (fill_.Pixels.IsEmpty()) return image;
  for (int y = 0; y < image.Height; ++y) {
    fill_.PaintRow(y, 0, image.Width, image.Pixels.data() + image.IndexOf(0, y));
  }
  return image;
}

bool PictureBox::FillToBorder(std::span<const PixelPoint> seeds, Color border) {
  const std::uint32_t paint = PixelOf(FillColor);
  try {
    if (!fill_.Pixels.IsEmpty() && (fill_.Paint != paint || fill_.Border != border)) {
      own_ = Image();
      fill_ = {};
    }
    const Raster& backdrop = Backdrop();
    const auto opens = [&](PixelPoint at) {
      return PixelRect{0, 0, backdrop.Width, backdrop.Height}.Contains(at) &&
             backdrop.Pixels[backdrop.IndexOf(at.X, at.Y)] != PixelOf(border);
    };
    if (std::ranges::none_of(seeds, opens)) return true;
    // The layer covers whole regions of the backdrop, so it neither opens nor closes a way.
    PixelBits reached = BorderFill(backdrop, seeds, border);
    if (!fill_.Pixels.IsEmpty()) reached.Add(fill_.Pixels);
    fill_ = {.Pixels = std::move(reached), .Paint = paint, .Border = border};
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

void PictureBox::PropertyChanged(PropertyId id) {
  if (id != PropertyId::Picture && id != PropertyId::Width && id != PropertyId::Height) {
    return Control::PropertyChanged(id);
  }
  std::optional<Raster> oldBackdrop;
  FillLayer oldFill;
  bool replaced = false;
  try {
    oldBackdrop = std::exchange(own_, Padded());
    oldFill = std::exchange(fill_, {});
    replaced = true;
    ScrollTo(ScrollLeft, ScrollTop);
    Control::PropertyChanged(id);
  } catch (...) {
    if (replaced) {
      own_ = std::move(oldBackdrop);
      fill_ = std::move(oldFill);
    }
    Picture.Restore(imagePicture_);
    Width.Restore(imageWidth_);
    Height.Restore(imageHeight_);
    throw;
  }
  imagePicture_ = Picture;
  imageWidth_ = Width;
  imageHeight_ = Height;
}

void PictureBox::ChildRemoved(const Control& child) {
  if (CursorItem == &child) CursorItem = nullptr;
}

std::optional<Raster> PictureBox::Padded() const {
  const Raster empty;
  const Raster& picture = Picture.Get() ? *Picture.Get() : empty;
  if (Picture.Get() && picture.Width >= BoxWidth() && picture.Height >= BoxHeight()) {
    return std::nullopt;
  }
  return PaddedCopy(picture, std::max(picture.Width, BoxWidth()),
                    std::max(picture.Height, BoxHeight()), PixelOf(BackColor));
}

}  // namespace terramark::forms
