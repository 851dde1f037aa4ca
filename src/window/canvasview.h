// A picture box: its image, the labels on it, the marker in the air, and scroll bars of its own
// when the picture is larger than the box. Only what changes is painted.
#pragma once

#include <QScrollBar>
#include <unordered_map>

#include "forms/controls.h"
#include "forms/picturebox.h"
#include "window/controlview.h"

namespace terramark::window {

class CanvasView : public QWidget, public ControlView {
 public:
  CanvasView(forms::PictureBox& box, QWidget& container);

  /// A label on the picture is new or has changed.
  void LabelChanged(const forms::Control& label);
  /// A label is about to go; only its identity is used.
  void LabelGone(const forms::Control& label);
  /// The marker in the air moved, appeared or went.
  void DragMoved();

 protected:
  void ShowOwn(forms::PropertyId id) override;
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void LayBars();
  QRect InBox(const QRect& onPicture) const;
  void PaintImage(QPainter& painter, const QRect& part) const;
  void PaintFlight(QPainter& painter) const;
  /// Where the marker in the air stands; empty when there is none.
  QRect Flight() const;

  forms::PictureBox& box_;
  QScrollBar across_;
  QScrollBar down_;
  /// Where each visible label was last seen, in pixels of the picture.
  std::unordered_map<const forms::Control*, QRect> seen_;
  QRect flightSeen_;
};

}  // namespace terramark::window
