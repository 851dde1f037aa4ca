// Shows the zoom of a picture in the corner of its box; nothing at actual size.
#pragma once

#include <QLabel>

#include "forms/zoom.h"

namespace terramark::window {

class ZoomLabel : public QLabel {
 public:
  explicit ZoomLabel(QWidget& box);

  /// The part of the box that shows the picture is in pixels of the box.
  void Tell(forms::Magnification zoom, const QRect& view);
};

}  // namespace terramark::window
