// A frame: an etched line with the caption in its upper edge. While it is disabled, the controls in
// it take no input.
#pragma once

#include <QGroupBox>

#include "forms/controls.h"
#include "window/controlview.h"

namespace terramark::window {

class FrameView final : public QGroupBox, public ControlView {
 public:
  FrameView(forms::Frame& frame, QWidget& container);

 protected:
  void ShowOwn(forms::PropertyId id) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  forms::Frame& frame_;
};

}  // namespace terramark::window
