// A dialog that shows a form until it is unloaded.
#pragma once

#include <QDialog>
#include <QLabel>

#include "window/formview.h"

namespace terramark::window {

/// Draws its frame and caption itself: some window managers put all their buttons on whatever has a
/// frame of theirs. It is as large as the form and these, and is never minimised. Escape closes it
/// too.
class ModalForm : public QDialog {
 public:
  /// The form must outlive the dialog.
  ModalForm(forms::Form& form, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  /// A press on the caption takes the dialog along.
  void mousePressEvent(QMouseEvent* event) override;

 private:
  QLabel caption_{this};
  FormView inside_;
};

}  // namespace terramark::window
