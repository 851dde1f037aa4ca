// A picture box: a container in pixels with a backdrop picture and a persistent image that is
// painted on. A picture larger than the box is reached by scrolling, and it can be magnified.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <utility>

#include "forms/control.h"
#include "forms/geometry.h"
#include "forms/pixelbits.h"
#include "forms/raster.h"
#include "forms/zoom.h"

namespace terramark::forms {

class PictureBox : public Control {
 public:
  /// Thickness of the scroll bars inside the box, in pixels.
  static constexpr int ScrollBarExtent = 16;

  explicit PictureBox(std::string name) : Control(ControlKind::PictureBox, std::move(name)) {
    InnerScale = Scale::Pixels;
  }

  /// Assigning replaces the persistent image, paint included, also by the picture that the box has
  /// already. The empty picture empties the box. A picture that covers the box is not copied; for a
  /// smaller one it throws std::bad_alloc when memory runs out, as does a larger size of
  /// the box. Whatever is thrown, nothing has changed.
  Property<forms::Picture, NotifyOn::EveryAssignment> Picture{*this, PropertyId::Picture};
  /// Colour of the fill brush.
  Color FillColor = 0x000000FF;
  /// How many pixels of the screen are scrolled out at the left and at the top; to change them use
  /// ScrollTo.
  Property<int> ScrollLeft{*this, PropertyId::ScrollLeft, 0};
  Property<int> ScrollTop{*this, PropertyId::ScrollTop, 0};
  /// The scale at which the picture and its labels are shown; to change it use ZoomTo. Places stay
  /// in pixels of the picture.
  Property<Magnification> Zoom{*this, PropertyId::Zoom, ActualSize};
  /// Whether the box is in the tab order.
  bool TabStop = false;
  /// The control on the picture that the box's keys act on; null for none. It is marked while the
  /// box has the focus.
  Property<Control*> CursorItem{*this, PropertyId::CursorItem, nullptr};

  /// What lies below the fill: the picture, with a margin where the box is larger, and with the
  /// paint of earlier fills in other colours. It is the picture's own raster where that covers the
  /// box and has no such paint.
  const Raster& Backdrop() const { return own_ ? *own_ : *Picture.Get(); }
  /// The paint of the last fills. It is a bit for each pixel of the backdrop instead of a painted
  /// copy, which would take most of the time of a fill.
  struct FillLayer {
    PixelBits Pixels;         // IsEmpty until something is painted
    std::uint32_t Paint = 0;  // what their pixels show, as in a raster
    Color Border = 0;         // what stopped them

    /// Paints its part of the pixels left <= x < right of row y, which are at `row`.
    void PaintRow(int y, int left, int right, std::uint32_t* row) const;
  };
  const FillLayer& Fill() const { return fill_; }
  /// A copy of the persistent image. std::bad_alloc when memory runs out.
  Raster Image() const;

  /// The inside of the box in whole pixels.
  int BoxWidth() const;
  int BoxHeight() const;
  /// The box without its scroll bars, in pixels.
  int ViewWidth() const;
  int ViewHeight() const;
  /// The size of the zoomed picture in pixels of the screen; without a picture, of the blank image.
  int ZoomedWidth() const;
  int ZoomedHeight() const;
  bool ScrollsAcross() const;
  bool ScrollsDown() const;
  /// Scrolls as near to the place as the picture's edges allow.
  void ScrollTo(int left, int top);
  /// Scrolls so many pixels to the right and down, as far as the picture's edges allow.
  void ScrollBy(int across, int down) { ScrollTo(ScrollLeft + across, ScrollTop + down); }
  /// Zooms about a pixel of the box: what is visible there stays there, as far as the picture's
  /// edges allow.
  void ZoomTo(Magnification zoom, PixelPoint about);
  /// The largest step at which the picture is visible as a whole, or else the smallest of all;
  /// actual size without a picture.
  Magnification FittingZoom() const;
  /// The middle of the visible part, in pixels of the box.
  PixelPoint ViewCentre() const { return {ViewWidth() / 2, ViewHeight() / 2}; }
  /// Scrolls, as far as the picture's edges allow, until a part of the picture is visible with some
  /// margin.
  void ScrollIntoView(const PixelRect& onPicture);

  /// Paints FillColor on the persistent image, from the seeds outward up to pixels of the border
  /// colour. A seed outside the image or on the border paints nothing. When memory runs out nothing
  /// is painted and the result is false. Refresh shows the result. On a map it takes
  /// about two passes over the pixels; a fill in another colour or up to another border than the
  /// last also copies the image.
  bool FillToBorder(std::span<const PixelPoint> seeds, Color border);

  void PropertyChanged(PropertyId id) override;
  void ChildRemoved(const Control& child) override;

 private:
  /// The picture, or the blank image where there is none.
  const Raster& DisplayedImage() const;
  /// A new image from the picture; nothing where the picture itself can be the image.
  std::optional<Raster> Padded() const;

  /// The backdrop where it is not the picture itself: larger, or with the paint of another colour.
  std::optional<Raster> own_ = Raster{};
  FillLayer fill_;
  /// The values that the image was made from; they are restored when an assignment fails.
  forms::Picture imagePicture_;
  float imageWidth_ = 0;
  float imageHeight_ = 0;
};

}  // namespace terramark::forms
