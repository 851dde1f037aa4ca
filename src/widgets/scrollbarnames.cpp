#include "widgets/scrollbarnames.h"

#include <QScrollBar>

namespace terramark::widgets {

void NameScrollBars(const QWidget& widget, const QString& what) {
  for (QScrollBar* bar : widget.findChildren<QScrollBar*>()) {
    const char* const way = bar->orientation() == Qt::Horizontal ? "%1 sideways" : "%1 up and down";
    bar->setAccessibleName(QString(way).arg(what));
  }
}

}  // namespace terramark::widgets
