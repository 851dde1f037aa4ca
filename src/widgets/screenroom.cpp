#include "widgets/screenroom.h"

#include <QScreen>

namespace terramark::widgets {

QSize RoomFor(const QWidget& window) {
  return window.screen()->availableSize() - QSize(2 * FrameRoom, TitleRoom + FrameRoom);
}

}  // namespace terramark::widgets
