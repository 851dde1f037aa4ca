// What is seen of a picture that is magnified.
#pragma once

#include <QImage>
#include <QRect>

#include "forms/picturebox.h"

namespace terramark::window {

/// A part of the box, in its pixels, each of which shows the nearest pixel of the box's image. The
/// part must lie on the image.
QImage Magnified(const forms::PictureBox& box, const QRect& part);

}  // namespace terramark::window
