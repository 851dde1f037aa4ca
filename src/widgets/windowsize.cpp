#include "widgets/windowsize.h"

#include <QScreen>

namespace terramark::widgets {

QSize MaxWindowSizeFor(const QWidget& window) {
  return window.screen()->availableSize() - QSize(2 * FrameMargin, TitleBarMargin + FrameMargin);
}

}  // namespace terramark::widgets
