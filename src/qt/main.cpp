// Starts the editor. There is no command line: what stands on it is passed over.
#include <QApplication>

#include "editor/handlers.h"
#include "qt/look.h"
#include "qt/mainwindow.h"
#include "qt/qtdesktop.h"
#include "shell/startup.h"

int main(int /*argc*/, char** argv) {
  int argumentCount = 1;
  QApplication application(argumentCount, argv);
  terramark::qt::SetUpLook(application);

  terramark::qt::QtDesktop desktop;
  terramark::Form1 form(desktop);
  terramark::JoinHandlers(form);
  terramark::Form_Load(form);

  terramark::qt::MainWindow window(form);
  desktop.StandOver(&window);
  window.show();
  return QApplication::exec();
}
