#include "qt/modalform.h"

namespace terramark::qt {

ModalForm::ModalForm(forms::Form& form, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      inside_(form, this) {
  inside_.resize(inside_.DesignSize());
  inside_.OnUnload = [this] { accept(); };
  inside_.DressWindow();
  setFixedSize(inside_.DesignSize());
}

}  // namespace terramark::qt
