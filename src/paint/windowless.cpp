#include "paint/windowless.h"

#include <QGuiApplication>

namespace terramark::paint {

Windowless::Windowless() {
  // Qt keeps references to both for as long as the application lives.
  static int argumentCount = 1;
  static char name[] = "terramark";
  static char* arguments[] = {name, nullptr};
  // Qt warns about parts of a desktop that are missing, which are not needed here.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qunsetenv("QT_QPA_PLATFORMTHEME");
  // Qt would create a folder for the session and leave it behind. With these it cannot.
  qunsetenv("XDG_RUNTIME_DIR");
  qputenv("TMPDIR", "/dev/null");
  application_ = std::make_unique<QGuiApplication>(argumentCount, arguments);
}

Windowless::~Windowless() = default;

}  // namespace terramark::paint
