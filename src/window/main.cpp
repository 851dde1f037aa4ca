// Starts the editor. There is no command line: what stands on it is passed over.
#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include "editor/handlers.h"
#include "shell/startup.h"
#include "window/look.h"
#include "window/mainwindow.h"
#include "window/qtdesktop.h"

namespace {

/// Hears the messages while the display is joined. Those about joining count only if it fails, and
/// a display that does not answer takes one line instead of all of them and an abort.
void HearJoining(QtMsgType type, const QMessageLogContext& context, const QString& text) {
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

int main(int /*argc*/, char** argv) {
  int argumentCount = 1;
  qInstallMessageHandler(HearJoining);
  QApplication application(argumentCount, argv);
  qInstallMessageHandler(nullptr);
  terramark::window::SetUpLook(application);

  terramark::window::QtDesktop desktop;
  terramark::Form1 form(desktop);
  terramark::JoinHandlers(form);
  terramark::Form_Load(form);

  terramark::window::MainWindow window(form);
  desktop.StandOver(&window);
  window.show();
  return QApplication::exec();
}
