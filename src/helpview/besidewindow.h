// Where a window lies that should cover as little as possible of another.
#pragma once

#include <QRect>
#include <QSize>

namespace terramark::helpview {

/// The place of a window, with its frame, on a screen whose `room` is free: beside the window that
/// takes `taken`, on its right, on its left, below or above it, wherever there is room for `size`,
/// or else for a smaller one that is not below `least`. Where there is no room, it has `size` and
/// covers as little as it can, on the right or on the left side. All in pixels; `size` is no larger
/// than `room`.
QRect PlaceBesideWindow(const QRect& room, const QRect& taken, QSize size, QSize least);

}  // namespace terramark::helpview
