#include "window/screenroom.h"

#include <QScreen>

namespace terramark::window {

QSize RoomFor(const QWidget& window) {
  return window.screen()->availableSize() - QSize(2 * FrameRoom, TitleRoom + FrameRoom);
}

}  // namespace terramark::window
