#include "paint/devicepixels.h"

#include <QRect>
#include <QTransform>
#include <cmath>

namespace terramark::paint {

QRect MapToDevice(const QTransform& toDevice, const QRect& area) {
  const QRectF mapped = toDevice.mapRect(QRectF(area));
  // Each edge is rounded by itself; QRectF::toRect rounds sizes. A half is rounded up on either
  // side of 0, as MapFromDevice assumes; qRound goes away from 0.
  const auto edge = [](double at) { return static_cast<int>(std::floor(at + 0.5)); };
  return {QPoint(edge(mapped.left()), edge(mapped.top())),
          QPoint(edge(mapped.right()) - 1, edge(mapped.bottom()) - 1)};
}

int MapFromDevice(int onDevice, double scale, double origin) {
  return static_cast<int>(std::ceil((onDevice + 0.5 - origin) / scale)) - 1;
}

}  // namespace terramark::paint
