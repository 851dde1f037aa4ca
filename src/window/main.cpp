// Starts the editor. There are no command line arguments; any are ignored.
#include <QApplication>

#include "editor/handlers.h"
#include "shell/form1.h"
#include "shell/startup.h"
#include "window/appstyle.h"
#include "window/closedwindows.h"
#include "window/displayfault.h"
#include "window/keyrepeats.h"
#include "window/mainwindow.h"
#include "window/qtdesktop.h"

int main(int /*argc*/, char** argv) {
  int argumentCount = 1;
  terramark::window::BeginDisplayConnection();
  QApplication application(argumentCount, argv);
  terramark::window::EndDisplayConnection();
  terramark::window::InstallStyle(application);

  terramark::window::QtDesktop desktop;
  terramark::Form1 form(desktop);
  terramark::ConnectHandlers(form);
  terramark::Form_Load(form);

  const terramark::window::KeyRepeats repeats;
  const terramark::window::ClosedWindows closed;
  terramark::window::MainWindow window(form);
  desktop.SetDialogParent(&window);
  window.show();
  return QApplication::exec();
}
