// A picture box: its image, the labels on it, the marker in the air, how much it is magnified, and
// scroll bars of its own when the picture is larger than the box. Only what changes is painted.
#pragma once

#include <QLabel>
#include <QScrollBar>
#include <unordered_map>

#include "forms/controls.h"
#include "forms/picturebox.h"
#include "window/controlview.h"

namespace terramark::window {

class CanvasView : public QWidget, public ControlView {
 public:
  CanvasView(forms::PictureBox& box, QWidget& container);

  const forms::PictureBox& Box() const { return box_; }
  /// What the scroll bars leave, in pixels of the widget.
  QRect Viewport() const { return {0, 0, box_.ViewWidth(), box_.ViewHeight()}; }
  /// What the box's keys act on, which has a ring; null while there is none to be seen.
  const forms::Control* VisibleCursorItem() const;

  /// A label on the picture is new or has changed.
  void LabelChanged(const forms::Control& label);
  /// A label is about to go; only its identity is used.
  void ForgetLabel(const forms::Control& label);
  /// Where a label is in pixels of the picture, also while the keyboard carries it.
  QRect PictureRectOf(const forms::Control& label) const;
  /// The same in pixels of the widget; it may have scrolled out of view.
  QRect WidgetRectOf(const forms::Control& label) const { return MapToBox(PictureRectOf(label)); }
  /// The pointer moved, or the marker in the air moved, appeared or went.
  void PointerMoved();

 protected:
  void ShowOwn(forms::PropertyId id) override;
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void PlaceScrollBars();
  void PlaceZoomLabel();
  void MoveRing();
  void UpdateCursorShape();
  void ZoomByWheel(int angle, QPoint about);

  QRect MapToBox(const QRect& onPicture) const;
  /// What is painted for something at a place of the picture, its ring included.
  QRect DirtyRect(const QRect& onPicture) const;
  /// Where the marker in the air is shown; empty when there is none.
  QRect DragRect() const;

  void PaintMarker(QPainter& painter, const QRect& area, const forms::Label& label) const;
  void PaintDrag(QPainter& painter) const;
  void PaintFocus(QPainter& painter) const;

  forms::PictureBox& box_;
  QScrollBar horizontalBar_;
  QScrollBar verticalBar_;
  QLabel zoom_;
  /// What the wheel has turned towards the next magnification, in eighths of a degree.
  int zoomTurn_ = 0;
  /// What it has turned towards the next pixel, in parts of one: NotchAngle make a pixel.
  QPoint scrollRest_;
  /// The label that was ringed last; only its identity is used.
  const forms::Control* cursorItem_;
  /// Where each visible label was last seen, in pixels of the picture.
  std::unordered_map<const forms::Control*, QRect> seen_;
  QRect shownDragRect_;
};

}  // namespace terramark::window
