#include "paint/showntext.h"

#include "paint/cp1252.h"

namespace terramark::paint {

namespace {

constexpr std::size_t ShownMost = 500;

}  // namespace

QString ShownText(const std::string& text, Qt::TextElideMode cutAt) {
  if (text.size() <= ShownMost) return FromCp1252(text);
  const std::size_t tail = cutAt == Qt::ElideMiddle ? ShownMost / 2 : 0;
  return FromCp1252(text.substr(0, ShownMost - 1 - tail) + '\x85' +
                    text.substr(text.size() - tail));
}

}  // namespace terramark::paint
