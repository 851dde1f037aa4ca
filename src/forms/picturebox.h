// A picture box: a container in pixels with a backdrop picture and a persistent image that is
// painted on. A picture larger than the box is reached by scrolling, and it can be magnified.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <utility>

#include "forms/control.h"
#include "forms/geometry.h"
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
  /// smaller one it throws std::bad_alloc when the memory does not reach, as does a larger size of
  /// the box. Whatever is thrown, nothing has changed.
  Property<forms::Picture, NotifyOn::EveryAssignment> Picture{*this, PropertyId::Picture};
  /// Colour of the fill brush.
  Color FillColor = 0x000000FF;
  /// Pixels of the screen that have gone out at the left and at the top; use ScrollTo.
  Property<int> ScrollLeft{*this, PropertyId::ScrollLeft, 0};
  Property<int> ScrollTop{*this, PropertyId::ScrollTop, 0};
  /// How large the picture and all on it are shown; use ZoomTo. Places stay pixels of the picture.
  Property<Magnification> Zoom{*this, PropertyId::Zoom, ActualSize};
  /// Whether the box takes the keyboard in the tab order.
  bool TabStop = false;
  /// The control on the picture that the box's keys act on; null for none. It is marked while the
  /// box has the keyboard.
  Property<Control*> CursorItem{*this, PropertyId::CursorItem, nullptr};

  /// The persistent image: as large as the picture and never smaller than the box. It is the
  /// picture itself until it is painted on.
  const Raster& Image() const { return own_ ? *own_ : *Picture.Get(); }

  /// Inside of the box in whole pixels.
  int BoxWidth() const;
  int BoxHeight() const;
  /// What the scroll bars leave of the box, in pixels.
  int ViewWidth() const;
  int ViewHeight() const;
  /// The picture as it is magnified, in pixels of the screen; where there is none, the blank image.
  int ZoomedWidth() const;
  int ZoomedHeight() const;
  bool ScrollsAcross() const;
  bool ScrollsDown() const;
  /// Scrolls as near to the place as the picture's edges allow.
  void ScrollTo(int left, int top);
  /// Likewise, so many pixels further to the right and down.
  void ScrollBy(int across, int down) { ScrollTo(ScrollLeft + across, ScrollTop + down); }
  /// Magnifies about a pixel of the box: as far as the picture's edges allow, what is seen there
  /// stays there.
  void ZoomTo(Magnification zoom, PixelPoint about);
  /// The middle of what is seen, in pixels of the box.
  PixelPoint ViewCentre() const { return {ViewWidth() / 2, ViewHeight() / 2}; }
  /// Scrolls, as far as the picture's edges allow, until a part of it is seen with some ground
  /// around.
  void ScrollIntoView(const PixelRect& onPicture);

  /// Paints FillColor on the persistent image from points of it outward up to pixels of the border
  /// colour. A point outside the image or on the border paints nothing. When the memory does not
  /// reach, nothing is painted and it gives false. Refresh shows it.
  bool FillToBorder(std::span<const PixelPoint> seeds, Color border);

  void PropertyChanged(PropertyId id) override;
  void ChildRemoved(const Control& child) override;

 private:
  /// What there is to see.
  const Raster& DisplayedImage() const;
  /// What the image is anew where it is not the picture itself.
  std::optional<Raster> Padded() const;

  /// The image where it is not the picture itself: larger, or painted on.
  std::optional<Raster> own_ = Raster{};
  /// What the image was made for: the values to restore when an assignment fails.
  forms::Picture imagePicture_;
  float imageWidth_ = 0;
  float imageHeight_ = 0;
};

}  // namespace terramark::forms
