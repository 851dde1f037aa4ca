#include "pictures/showntext.h"

#include <QRegularExpression>

#include "pictures/cp1252.h"

namespace terramark::pictures {

namespace {

constexpr std::size_t ShownMost = 500;
/// Characters of a word that any line has room for.
constexpr int LongestWord = 40;

}  // namespace

QString ShownText(const std::string& text, Qt::TextElideMode cutAt) {
  if (text.size() <= ShownMost) return FromCp1252(text);
  const std::size_t tail = cutAt == Qt::ElideMiddle ? ShownMost / 2 : 0;
  return FromCp1252(text.substr(0, ShownMost - 1 - tail) + '\x85' +
                    text.substr(text.size() - tail));
}

QString WrappableText(const std::string& text) {
  QString shown = ShownText(text, Qt::ElideMiddle);
  for (QChar& character : shown) {
    if (character < ' ') character = ' ';
  }
  // A blank of no width is where a word may break.
  return shown.replace(QRegularExpression(QStringLiteral("(\\S{%1})").arg(LongestWord)),
                       QStringLiteral("\\1\u200B"));
}

}  // namespace terramark::pictures
