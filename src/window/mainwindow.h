// The editor's window.
#pragma once

#include <QMainWindow>

#include "shell/form1.h"
#include "window/formview.h"
#include "window/keyrepeats.h"

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
  KeyRepeats repeats_;
  FormView inside_;
};

}  // namespace terramark::window
