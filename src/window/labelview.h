// A label outside a picture. The canvas draws the labels on a picture.
#pragma once

#include <QLabel>

#include "forms/controls.h"
#include "window/controlview.h"

namespace terramark::window {

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
