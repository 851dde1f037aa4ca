#include "paint/lettering.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QPainter>

#include "forms/geometry.h"
#include "paint/elidedtext.h"

namespace terramark::paint {

namespace {

constexpr float FontTwips = 8.25F * 20;

/// The families that are installed, or all when none is. A family that is not installed is left
/// out, since Qt has the system look for a substitute at every start.
QStringList InstalledOf(const QStringList& families) {
  const QStringList all = QFontDatabase::families();
  QStringList installed;
  for (const QString& family : families) {
    if (all.contains(family, Qt::CaseInsensitive)) installed += family;
  }
  return installed.isEmpty() ? families : installed;
}

const QStringList& FormFamilies() {
  static const QStringList families =
      InstalledOf(QStringList{"MS Sans Serif", "Microsoft Sans Serif"} + TextFamilies());
  return families;
}

/// Bold, in the size of all controls.
QFont SizedFont(const QStringList& families, forms::Desktop& host) {
  QFont font;
  font.setFamilies(families);
  font.setBold(true);
  font.setPixelSize(forms::TwipsToPixelsY(host, FontTwips));
  return font;
}

}  // namespace

const QStringList& TextFamilies() {
  static const QStringList families = InstalledOf({"Arial", "Liberation Sans"});
  return families;
}

QFont TextFont(forms::Desktop& host) {
  return SizedFont(TextFamilies(), host);
}

QFont FormFont(forms::Desktop& host) {
  return SizedFont(FormFamilies(), host);
}

forms::TextExtent ExtentOf(const std::string& text, forms::Desktop& host) {
  const QFontMetrics metrics(TextFont(host));
  return {metrics.horizontalAdvance(ElidedText(text)), metrics.height()};
}

void DrawCaption(QPainter& painter, const QRect& area, const QString& text,
                 Qt::TextElideMode cutAt) {
  const QFontMetrics metrics = painter.fontMetrics();
  if (metrics.horizontalAdvance(text) <= area.width()) {
    painter.drawText(area, Qt::AlignCenter | Qt::TextSingleLine, text);
  } else {
    painter.drawText(area, Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(text, cutAt, area.width()));
  }
}

}  // namespace terramark::paint
