// A dialog that shows a form until it is unloaded.
#pragma once

#include <QDialog>

#include "window/formview.h"

namespace terramark::window {

/// Of a fixed size, with a title and no buttons in it. Escape and the window manager close it too.
class ModalForm : public QDialog {
 public:
  ModalForm(forms::Form& form, QWidget* parent);

 private:
  FormView inside_;
};

}  // namespace terramark::window
