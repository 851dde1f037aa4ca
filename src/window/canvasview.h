// A picture box: its image, the labels on it, the label that is dragged, its zoom, and scroll bars
// when the picture is larger than the box. Only what has changed is repainted.
#pragma once

#include <QScrollBar>
#include <unordered_map>

#include "forms/controls.h"
#include "forms/geometry.h"
#include "forms/picturebox.h"
#include "paint/blackblocks.h"
#include "window/controlview.h"
#include "window/zoomlabel.h"

namespace terramark::window {

class CanvasView : public QWidget, public ControlView {
 public:
  CanvasView(forms::PictureBox& box, QWidget& container);

  const forms::PictureBox& Box() const { return box_; }
  /// The box without its scroll bars, in pixels of the widget.
  QRect Viewport() const { return {0, 0, box_.ViewWidth(), box_.ViewHeight()}; }
  /// The item that the box's keys act on, which has a ring around it; null while no ring is
  /// visible.
  const forms::Control* VisibleCursorItem() const;

  /// A label on the picture is new or has changed.
  void LabelChanged(const forms::Control& label);
  /// A label is about to be destroyed; only its address is used.
  void ForgetLabel(const forms::Control& label);
  /// The pixels of the widget that show a label, also during a key drag; they may be scrolled out
  /// of view.
  QRect WidgetRectOf(const forms::Control& label) const;
  /// The pointer moved, or the dragged label moved, appeared or disappeared.
  void PointerMoved();

 protected:
  void ShowOwn(forms::PropertyId id) override;
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void UpdateBlackBlocks();
  void PlaceScrollBars();
  void MoveRing();
  void UpdateCursorShape();
  void ZoomByWheel(int angle, QPoint about);

  /// A part of the picture in pixels of the widget.
  QRect MapToBox(const forms::PixelRect& onPicture) const;
  /// Where a label is shown when it is not dragged, in pixels of the widget.
  QRect RestingRectOf(const forms::Control& label) const {
    return MapToBox(forms::DisplayBounds(label));
  }
  /// Where the dragged label is shown, in pixels of the widget; empty without a drag.
  QRect DragRect() const;

  void PaintMarker(QPainter& painter, const QRect& area, const forms::Label& label) const;
  void PaintDrag(QPainter& painter) const;
  void PaintFocus(QPainter& painter) const;

  forms::PictureBox& box_;
  QScrollBar horizontalBar_;
  QScrollBar verticalBar_;
  ZoomLabel zoomLabel_;
  /// How far the wheel has been turned towards the next zoom step, in eighths of a degree.
  int zoomTurn_ = 0;
  /// How far it has been turned towards the next pixel, in parts of a pixel: NotchAngle parts are
  /// one.
  QPoint scrollRest_;
  /// The item that had the ring last; only its address is used.
  const forms::Control* cursorItem_;
  /// Where each visible label was shown last, in pixels of the widget.
  std::unordered_map<const forms::Control*, QRect> seen_;
  /// The picture's black, and the picture from which it was computed.
  paint::BlackBlocks black_;
  forms::Picture blackOf_;
  QRect shownDragRect_;
};

}  // namespace terramark::window
