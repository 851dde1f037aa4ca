// A text box of several lines, to be read only.
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
  /// Paints the frame too, of which the style leaves out sides on a scaled screen.
  bool event(QEvent* event) override;

 private:
  forms::TextBox& box_;
};

}  // namespace terramark::window
