// A text box of several lines, read only.
#pragma once

#include <QPlainTextEdit>

#include "forms/controls.h"
#include "window/controlview.h"

namespace terramark::window {

class MemoView final : public QPlainTextEdit, public ControlView {
 public:
  MemoView(forms::TextBox& box, QWidget& container);

  MouseUse Mouse() const override { return MouseUse::WidgetToo; }

 protected:
  void ShowOwn(forms::PropertyId id) override;
  /// Also paints the frame: the style leaves out sides of it on a scaled screen.
  bool event(QEvent* event) override;

 private:
  forms::TextBox& box_;
};

}  // namespace terramark::window
