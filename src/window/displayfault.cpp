#include "window/displayfault.h"

#include <QStringList>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>

namespace terramark::window {

namespace {

void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  static QStringList held;
  const QString line = qFormatLogMessage(type, context, text);
  if (type == QtFatalMsg) {
    QStringList displays{qEnvironmentVariable("WAYLAND_DISPLAY"), qEnvironmentVariable("DISPLAY")};
    displays.removeAll({});
    if (held.filter("display").isEmpty()) {
      held += line;
    } else if (displays.isEmpty()) {
      held = QStringList{"terramark: there is no display"};
    } else {
      held = QStringList{"terramark: the display " + displays.join(" or ") + " does not answer"};
    }
    std::fprintf(stderr, "%s\n", qUtf8Printable(held.join('\n')));
    std::_Exit(EXIT_FAILURE);
  }
  if (QString(context.category).startsWith("qt.qpa.") || text.contains("wl_display")) {
    held += line;
  } else {
    std::fprintf(stderr, "%s\n", qUtf8Printable(line));
  }
}

}  // namespace

void BeginDisplayConnection() {
  qInstallMessageHandler(HandleMessage);
}

void EndDisplayConnection() {
  qInstallMessageHandler(nullptr);
}

}  // namespace terramark::window
