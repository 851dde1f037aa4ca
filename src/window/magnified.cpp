#include "window/magnified.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "forms/geometry.h"

namespace terramark::window {

QImage Magnified(const forms::PictureBox& box, const QRect& part) {
  const forms::Raster& image = box.Image();
  std::vector<int> columns;
  for (int x = part.left(); x <= part.right(); ++x) {
    columns.push_back(OnPicture(box, {x, 0}).X);
  }
  QImage seen(part.size(), QImage::Format_RGB32);
  int shown = -1;
  for (int y = 0; y < part.height(); ++y) {
    const int row = OnPicture(box, {0, part.top() + y}).Y;
    auto* const to = reinterpret_cast<std::uint32_t*>(seen.scanLine(y));
    if (row == shown) {
      std::memcpy(to, seen.constScanLine(y - 1), columns.size() * sizeof *to);
      continue;
    }
    const std::uint32_t* const from = image.Pixels.data() + image.At(0, row);
    for (std::size_t x = 0; x < columns.size(); ++x) to[x] = from[columns[x]];
    shown = row;
  }
  return seen;
}

}  // namespace terramark::window
