#include "paint/devicepixels.h"

#include <QRect>
#include <QTransform>
#include <cmath>

namespace terramark::paint {

QRect MapToDevice(const QTransform& toDevice, const QRect& area) {
  const QRectF mapped = toDevice.mapRect(QRectF(area));
  // Each edge is rounded by itself; QRectF::toRect rounds sizes.
  return {QPoint(qRound(mapped.left()), qRound(mapped.top())),
          QPoint(qRound(mapped.right()) - 1, qRound(mapped.bottom()) - 1)};
}

int MapFromDevice(int onDevice, double scale, double origin) {
  return static_cast<int>(std::ceil((onDevice + 0.5 - origin) / scale)) - 1;
}

}  // namespace terramark::paint
