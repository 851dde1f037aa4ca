// How much of a screen there is for a window that has not been shown yet.
#pragma once

#include <QSize>
#include <QWidget>

namespace terramark::widgets {

/// Pixels that the window manager may put around a window: at each side and below, and above it.
inline constexpr int FrameMargin = 8;
inline constexpr int TitleBarMargin = 40;

/// The largest size, in pixels, at which the window with such a frame lies on its screen as a
/// whole.
QSize MaxWindowSizeFor(const QWidget& window);

}  // namespace terramark::widgets
