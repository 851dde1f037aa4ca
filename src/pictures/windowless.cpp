#include "pictures/windowless.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <optional>

namespace terramark::pictures {

Windowless::Windowless() {
  // Qt keeps references to both for as long as the application lives.
  static int argumentCount = 1;
  static char name[] = "terramark";
  static char* arguments[] = {name, nullptr};
  // What Qt misses of a desktop is no news here.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qunsetenv("QT_QPA_PLATFORMTHEME");
  // Where no session runs, Qt would make a folder for one, and leave it behind.
  std::optional<QTemporaryDir> session;
  if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) {
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(session.emplace().path()));
  }
  application_ = std::make_unique<QGuiApplication>(argumentCount, arguments);
}

Windowless::~Windowless() = default;

}  // namespace terramark::pictures
