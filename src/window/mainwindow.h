// The editor's window.
#pragma once

#include <QMainWindow>

#include "window/formview.h"

namespace terramark {
struct Form1;
}

namespace terramark::window {

class MainWindow : public QMainWindow {
 public:
  /// Shows the form at its design size; a larger window leaves everything in its place.
  explicit MainWindow(Form1& form);

  FormView& Inside() { return inside_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  Form1& form_;
  FormView inside_;
};

}  // namespace terramark::window
