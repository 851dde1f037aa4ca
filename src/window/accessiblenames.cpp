#include "window/accessiblenames.h"

#include "paint/cp1252.h"
#include "paint/elidedtext.h"

namespace terramark::window {

QString AccessibleText(const forms::Label& label) {
  const QString name = paint::FromCp1252(label.AccessibleName);
  return QString(name + ' ' + paint::ElidedText(label.Caption, Qt::ElideMiddle).trimmed())
      .trimmed();
}

}  // namespace terramark::window
