#include "paint/elidedtext.h"

#include "paint/cp1252.h"

namespace terramark::paint {

namespace {

constexpr std::size_t MaxShownLength = 500;

}  // namespace

QString ElidedText(const std::string& text, Qt::TextElideMode cutAt) {
  if (text.size() <= MaxShownLength) return FromCp1252(text);
  const std::size_t tail = cutAt == Qt::ElideMiddle ? MaxShownLength / 2 : 0;
  return FromCp1252(text.substr(0, MaxShownLength - 1 - tail) + '\x85' +
                    text.substr(text.size() - tail));
}

}  // namespace terramark::paint
