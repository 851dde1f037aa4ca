// A text box of several lines, to be read only.
#pragma once

#include <QPlainTextEdit>

#include "forms/controls.h"
#include "qt/controlview.h"

namespace terramark::qt {

class MemoView : public QPlainTextEdit, public ControlView {
 public:
  MemoView(forms::TextBox& box, QWidget& container);

  bool OwnMouse() const override { return true; }

 protected:
  void ShowOwn(forms::PropertyId id) override;

 private:
  forms::TextBox& box_;
};

}  // namespace terramark::qt
