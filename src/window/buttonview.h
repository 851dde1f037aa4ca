// A command button: a raised face in its BackColor, flat while disabled. The mouse reaches it
// through the pointer router only; Space and Enter do, at their release, what a left press and
// release in its middle do.
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
  /// Raised, or sunken while it is held down; of a disabled button a line, and the face lies flat.
  void DrawEdge(QPainter& painter) const;

  forms::CommandButton& button_;
};

}  // namespace terramark::window
