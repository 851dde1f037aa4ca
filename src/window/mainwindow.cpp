#include "window/mainwindow.h"

#include <QCloseEvent>

#include "shell/form1.h"
#include "shell/startup.h"

namespace terramark::window {

MainWindow::MainWindow(Form1& form) : form_(form), inside_(form, *this) {
  setCentralWidget(&inside_);
  inside_.DressWindow();
  resize(inside_.DesignSize());
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  Form_Unload(form_);
}

}  // namespace terramark::window
