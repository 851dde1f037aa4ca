#include "window/accessiblenames.h"

#include <QScrollBar>

#include "pictures/cp1252.h"
#include "pictures/showntext.h"

namespace terramark::window {

QString AccessibleText(const forms::Label& label) {
  const QString name = pictures::FromCp1252(label.AccessibleName);
  return QString(name + ' ' + pictures::ShownText(label.Caption, Qt::ElideMiddle).trimmed())
      .trimmed();
}

void NameScrollBars(const QWidget& widget, const QString& what) {
  for (QScrollBar* bar : widget.findChildren<QScrollBar*>()) {
    const char* const way = bar->orientation() == Qt::Horizontal ? "%1 sideways" : "%1 up and down";
    bar->setAccessibleName(QString(way).arg(what));
  }
}

}  // namespace terramark::window
