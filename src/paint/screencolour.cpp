#include "paint/screencolour.h"

namespace terramark::paint {

QColor ScreenColour(forms::Color colour) {
  switch (colour) {
    case forms::SysWindow:
      return Qt::white;
    case forms::SysWindowText:
      return Qt::black;
    case forms::SysButtonFace:
      return {0xC0, 0xC0, 0xC0};
    default:
      return {static_cast<int>(colour & 0xFFU), static_cast<int>(colour >> 8U & 0xFFU),
              static_cast<int>(colour >> 16U & 0xFFU)};
  }
}

}  // namespace terramark::paint
