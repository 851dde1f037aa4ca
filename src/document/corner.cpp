#include "document/corner.h"

#include "document/numbers.h"

namespace terramark {

std::string MarkerCaption(std::int16_t area, std::int16_t corner) {
  std::string caption = NumberText(area);
  if (!IsCorner(corner)) return caption;
  const char mark = AtBottom(corner) ? '+' : '^';
  if (AtRight(corner)) {
    caption += mark;
  } else {
    caption[0] = mark;
  }
  return caption;
}

std::int16_t NextCorner(std::int16_t corner) {
  switch (corner) {
    case 2:
      return 0;
    case 0:
      return 1;
    case 3:
      return 2;
    default:
      return 3;
  }
}

}  // namespace terramark
