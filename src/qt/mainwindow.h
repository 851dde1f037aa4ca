// The editor's window.
#pragma once

#include <QMainWindow>

#include "qt/formview.h"
#include "qt/keyrepeats.h"
#include "shell/form1.h"

namespace terramark::qt {

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

}  // namespace terramark::qt
