// A command button: a raised face in its BackColor, flat and faded while disabled. The mouse
// reaches it through the pointer router only. Space and Enter, when released, do what a left click
// on its middle does.
#pragma once

#include <QPushButton>

#include "forms/controls.h"
#include "window/controlview.h"

namespace terramark::window {

class ButtonView final : public QPushButton, public ControlView {
 public:
  ButtonView(forms::CommandButton& button, QWidget& container);

 protected:
  void ShowOwn(forms::PropertyId id) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  /// Draws a raised edge, a sunken one while the button is held down, and a plain line while it is
  /// disabled.
  void DrawEdge(QPainter& painter) const;

  forms::CommandButton& button_;
};

}  // namespace terramark::window
