#include "window/mainwindow.h"

#include <QCloseEvent>
#include <QScreen>

#include "shell/form1.h"
#include "shell/startup.h"

namespace terramark::window {

MainWindow::MainWindow(Form1& form) : form_(form), area_(*this), inside_(form, *area_.viewport()) {
  setCentralWidget(&area_);
  inside_.Scrolling().OnReveal = [this](const QRect& place) { area_.Reveal(place); };
  inside_.Scrolling().OnWheel = [this](const QWheelEvent& turn) { area_.ScrollByWheel(turn); };
  inside_.ApplyWindowProperties();
  resize(inside_.DesignSize());
  FitScreen();
}

void MainWindow::FitScreen() {
  const QSize frame = frameGeometry().size() - size();
  const QSize room = screen()->availableGeometry().size() - frame;
  const QRect standing = inside_.childrenRect();
  const QSize needed(standing.right() + 1, standing.bottom() + 1);
  area_.SetContent(inside_, needed);
  setMinimumSize(needed.boundedTo(room));
  resize(size().boundedTo(room));
}

bool MainWindow::event(QEvent* event) {
  // The window manager has put a frame around the window only by now.
  if (event->type() == QEvent::WindowActivate && !framed_) {
    framed_ = true;
    FitScreen();
  }
  return QMainWindow::event(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  Form_Unload(form_);
}

}  // namespace terramark::window
