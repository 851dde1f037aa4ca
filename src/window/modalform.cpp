#include "window/modalform.h"

namespace terramark::window {

ModalForm::ModalForm(forms::Form& form, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      inside_(form, *this) {
  inside_.resize(inside_.DesignSize());
  inside_.OnUnload = [this] { accept(); };
  inside_.DressWindow();
  setFixedSize(inside_.DesignSize());
}

}  // namespace terramark::window
