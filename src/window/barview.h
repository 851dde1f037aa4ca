// A vertical scroll bar: its control hears of a value when the thumb is let go, and of every step.
// Its value shows beside it while it moves.
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
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect Thumb() const;
  /// Shows where the thumb stands, behind the bar's hint and in its place.
  void ShowValueTip();

  forms::VScrollBar& bar_;
};

}  // namespace terramark::window
