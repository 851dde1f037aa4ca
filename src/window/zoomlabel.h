// Shows the zoom of a picture in the corner of its box; nothing at actual size.
#pragma once

#include <QLabel>
#include <QRect>

#include "forms/zoom.h"

namespace terramark::window {

class ZoomLabel : public QLabel {
 public:
  explicit ZoomLabel(QWidget& box);

  /// Shows a zoom in the corner of `view`, in pixels of the box, or hides itself.
  void ShowZoom(forms::Magnification zoom, const QRect& view);
};

}  // namespace terramark::window
