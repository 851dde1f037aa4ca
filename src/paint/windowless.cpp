#include "paint/windowless.h"

#include <QGuiApplication>

namespace terramark::paint {

Windowless::Windowless() {
  // Qt keeps references to both for as long as the application lives.
  static int argumentCount = 1;
  static char name[] = "terramark";
  static char* arguments[] = {name, nullptr};
  // What Qt misses of a desktop is no news here.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qunsetenv("QT_QPA_PLATFORMTHEME");
  // Qt would make a folder for a session that there is not, and leave it behind. Here it cannot.
  qunsetenv("XDG_RUNTIME_DIR");
  qputenv("TMPDIR", "/dev/null");
  application_ = std::make_unique<QGuiApplication>(argumentCount, arguments);
}

Windowless::~Windowless() = default;

}  // namespace terramark::paint
