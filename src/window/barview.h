// A vertical scroll bar. Its control receives a new value when the thumb is released, and at every
// step. While the value changes it is shown in a tip beside the bar.
#pragma once

#include <QScrollBar>

#include "forms/controls.h"
#include "window/controlview.h"

namespace terramark::window {

class BarView : public QScrollBar, public ControlView {
 public:
  BarView(forms::VScrollBar& bar, QWidget& container);

  MouseUse Mouse() const override { return MouseUse::WidgetToo; }

 protected:
  void ShowOwn(forms::PropertyId id) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect Thumb() const;
  /// Shows the thumb's value beside it, after the bar's own tip text.
  void ShowValueTip();

  forms::VScrollBar& bar_;
};

}  // namespace terramark::window
