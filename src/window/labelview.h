// Labels: as widgets of their own, and as a drawing for the canvas, whose labels are no widgets.
#pragma once

#include <QLabel>

#include "forms/controls.h"
#include "window/controlview.h"

namespace terramark::window {

/// Draws a label with border, colours and caption into the rectangle, in the painter's font.
void DrawLabel(QPainter& painter, const QRect& area, const forms::Label& label);

class LabelView final : public QLabel, public ControlView {
 public:
  LabelView(forms::Label& label, QWidget& container);

  const forms::Label& Label() const { return label_; }

 protected:
  void ShowOwn(forms::PropertyId id) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  forms::Label& label_;
};

}  // namespace terramark::window
