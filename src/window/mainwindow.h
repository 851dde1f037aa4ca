// The editor's window.
#pragma once

#include <QMainWindow>

#include "window/formarea.h"
#include "window/formview.h"

namespace terramark {
struct Form1;
}

namespace terramark::window {

class MainWindow : public QMainWindow {
 public:
  /// Shows the form at its design size, or at the screen's where that is smaller; then the form
  /// scrolls. In a larger window all controls keep their places.
  explicit MainWindow(Form1& form);

  FormView& View() { return inside_; }

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  /// The smallest size is that of the form, but never larger than the screen.
  void FitScreen();

  Form1& form_;
  FormArea area_;
  FormView inside_;
  bool framed_ = false;
};

}  // namespace terramark::window
