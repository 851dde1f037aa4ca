// A dialog that shows a form until it is unloaded.
#pragma once

#include <QDialog>
#include <QLabel>

#include "window/formview.h"

namespace terramark::window {

/// Draws its frame and caption itself: some window managers add all their buttons to any window
/// that they frame. It is as large as the form with frame and caption, and is never minimised.
/// Escape closes it too.
class ModalForm : public QDialog {
 public:
  /// The form must outlive the dialog.
  ModalForm(forms::Form& form, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  /// A press on the caption moves the dialog.
  void mousePressEvent(QMouseEvent* event) override;

 private:
  QLabel caption_{this};
  FormView inside_;
};

}  // namespace terramark::window
