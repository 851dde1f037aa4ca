// Images that are sure to have their memory: Qt gives a null one when there is none, and drawing on
// that is lost or worse.
#pragma once

#include <QImage>
#include <QSize>
#include <new>

namespace terramark::pictures {

/// The image, its pixels shared with no other. Throws std::bad_alloc when the memory does not
/// reach.
inline QImage OwnPixels(QImage image) {
  image.detach();
  if (image.isNull()) throw std::bad_alloc();
  return image;
}

/// An image of a size that is not empty, its pixels not yet set. Throws std::bad_alloc when the
/// memory does not reach.
inline QImage NewImage(QSize size, QImage::Format format) {
  return OwnPixels(QImage(size, format));
}

}  // namespace terramark::pictures
