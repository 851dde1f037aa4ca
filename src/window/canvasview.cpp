#include "window/canvasview.h"

#include <QPaintEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <algorithm>
#include <new>
#include <utility>

#include "forms/form.h"
#include "paint/boxpaint.h"
#include "paint/frames.h"

namespace terramark::window {

namespace {

constexpr int WheelStep = 48;  // pixels a notch
constexpr int NotchAngle = 120;
constexpr double DragOpacity = 0.75;

void PlaceScrollBar(QScrollBar& bar, const QRect& place, int extent, int view, int value,
                    bool shown) {
  const QSignalBlocker still(&bar);
  bar.setGeometry(place);
  bar.setRange(0, std::max(0, extent - view));
  bar.setPageStep(view);
  bar.setSingleStep(WheelStep / 3);
  bar.setValue(value);
  bar.setVisible(shown);
}

/// One pixel wider than the ring: where the screen's scale is no whole number, Qt may leave out a
/// line at the edge of the area to repaint.
QRect Widened(const QRect& area) {
  const int by = paint::RingWidth + 1;
  return area.adjusted(-by, -by, by, by);
}

}  // namespace

CanvasView::CanvasView(forms::PictureBox& box, QWidget& container)
    : QWidget(&container),
      ControlView(box, *this),
      box_(box),
      horizontalBar_(Qt::Horizontal, this),
      verticalBar_(Qt::Vertical, this),
      zoomLabel_(*this),
      cursorItem_(box.CursorItem) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  if (box.TabStop) setFocusPolicy(Qt::TabFocus);
  const auto scroll = [this] { box_.ScrollTo(horizontalBar_.value(), verticalBar_.value()); };
  for (QScrollBar* bar : {&horizontalBar_, &verticalBar_}) {
    // The picture's hand cursor must not show over the bar.
    bar->setCursor(Qt::ArrowCursor);
    connect(bar, &QScrollBar::valueChanged, this, scroll);
  }
  UpdateBlackBlocks();
  PlaceScrollBars();
  zoomLabel_.ShowZoom(box_.Zoom, Viewport());
}

void CanvasView::PlaceScrollBars() {
  const int width = box_.ViewWidth();
  const int height = box_.ViewHeight();
  const int thick = forms::PictureBox::ScrollBarExtent;
  PlaceScrollBar(horizontalBar_, {0, height, width, thick}, box_.ZoomedWidth(), width,
                 box_.ScrollLeft, box_.ScrollsAcross());
  PlaceScrollBar(verticalBar_, {width, 0, thick, height}, box_.ZoomedHeight(), height,
                 box_.ScrollTop, box_.ScrollsDown());
}

void CanvasView::ShowOwn(forms::PropertyId id) {
  if (id == forms::PropertyId::CursorItem) return MoveRing();
  if (id == forms::PropertyId::Picture) UpdateBlackBlocks();
  PlaceScrollBars();
  zoomLabel_.ShowZoom(box_.Zoom, Viewport());
  for (auto& [label, seen] : seen_) seen = label->Visible ? RestingRectOf(*label) : QRect();
  shownDragRect_ = DragRect();
  update();
}

/// A refresh assigns the same picture again; it need not be read twice.
void CanvasView::UpdateBlackBlocks() {
  if (blackOf_ == box_.Picture.Get()) return;
  blackOf_ = box_.Picture;
  try {
    black_ = paint::BlackBlocks(blackOf_);
  } catch (const std::bad_alloc&) {
    black_ = {};  // the picture shows without
  }
}

const forms::Control* CanvasView::VisibleCursorItem() const {
  const forms::Control* const item = box_.CursorItem;
  return hasFocus() && item != nullptr && item->Visible ? item : nullptr;
}

void CanvasView::MoveRing() {
  const forms::Control* const now = box_.CursorItem;
  for (const forms::Control* label : {std::exchange(cursorItem_, now), now}) {
    const auto seen = seen_.find(label);
    // The ring is visible only while the box has the focus.
    if (hasFocus() && seen != seen_.end()) update(Widened(seen->second));
  }
}

void CanvasView::LabelChanged(const forms::Control& label) {
  QRect& seen = seen_[&label];
  const QRect now = label.Visible ? RestingRectOf(label) : QRect();
  if (!seen.isEmpty()) update(Widened(seen));
  if (!now.isEmpty()) update(Widened(now));
  seen = now;
}

void CanvasView::ForgetLabel(const forms::Control& label) {
  const auto seen = seen_.find(&label);
  if (seen == seen_.end()) return;
  if (!seen->second.isEmpty()) update(Widened(seen->second));
  seen_.erase(seen);
}

QRect CanvasView::MapToBox(const forms::PixelRect& onPicture) const {
  const forms::PixelRect area = forms::MapToBox(box_, onPicture);
  return {area.Left, area.Top, area.Width, area.Height};
}

QRect CanvasView::WidgetRectOf(const forms::Control& label) const {
  const auto drag = box_.ParentForm()->Pointer.KeyDragOf(label);
  return drag ? MapToBox(drag->DisplayBounds()) : RestingRectOf(label);
}

QRect CanvasView::DragRect() const {
  const forms::PointerRouter& pointer = box_.ParentForm()->Pointer;
  const auto drag = pointer.CurrentDrag();
  if (!drag || drag->Source.Container() != &box_) return {};
  QRect area = MapToBox(drag->DisplayBounds());
  const forms::PixelPoint held = forms::MapToBox(box_, drag->HotSpot);
  const QRect view = Viewport();
  // In a key drag no pointer shows the place, so the label is shown as far as it is in view.
  if (pointer.HasKeyDrag() ? view.intersects(area) : view.contains(held.X, held.Y)) return area;
  // A label that is dragged out of view is shown at the edge.
  area.moveLeft(std::clamp(area.left(), 0, std::max(0, view.width() - area.width())));
  area.moveTop(std::clamp(area.top(), 0, std::max(0, view.height() - area.height())));
  return area;
}

void CanvasView::PointerMoved() {
  if (const QRect dragged = DragRect(); dragged != shownDragRect_) {
    update(Widened(shownDragRect_));
    shownDragRect_ = dragged;
    update(Widened(shownDragRect_));
    // A cancelled key drag leaves the marker where it was, and the ring there.
    if (dragged.isEmpty() && box_.CursorItem != nullptr)
      update(Widened(RestingRectOf(*box_.CursorItem)));
  }
  UpdateCursorShape();
}

void CanvasView::UpdateCursorShape() {
  const forms::PointerRouter& pointer = box_.ParentForm()->Pointer;
  const forms::PixelPoint at = pointer.Position();
  Qt::CursorShape shape = Qt::ArrowCursor;
  if (pointer.HoveredControlAt(at.X, at.Y).Container() == &box_) shape = Qt::OpenHandCursor;
  if (pointer.HasMouseDrag()) shape = Qt::ClosedHandCursor;
  if (cursor().shape() != shape) setCursor(shape);
}

void CanvasView::paintEvent(QPaintEvent* event) {
  // After scrolling another control may be under the pointer, which has not moved.
  UpdateCursorShape();
  QPainter painter(this);
  const QRect view = Viewport();
  if (!view.contains(event->rect())) {
    painter.fillRect(event->rect(), palette().color(QPalette::Button));
  }
  painter.setClipRect(view, Qt::IntersectClip);
  // Where the scale is no whole number, painting may reach one line beyond the area.
  paint::PaintImage(painter, box_, black_, event->rect().adjusted(-1, -1, 1, 1) & view);
  paint::ForEachLabel(box_, [&](const forms::Label& label) {
    const QRect area = RestingRectOf(label);
    if (!event->rect().intersects(area)) return;
    painter.setClipRect(area & view);
    PaintMarker(painter, area, label);
  });
  painter.setClipRect(view);
  PaintDrag(painter);
  if (hasFocus()) PaintFocus(painter);
}

void CanvasView::PaintMarker(QPainter& painter, const QRect& area,
                             const forms::Label& label) const {
  // Below actual size a label keeps its own size.
  paint::PaintLabel(painter, area, box_.Zoom.Get().Screen, label);
}

void CanvasView::PaintDrag(QPainter& painter) const {
  const QRect area = DragRect();
  if (area.isEmpty()) return;
  painter.setOpacity(DragOpacity);
  const forms::Control& source = box_.ParentForm()->Pointer.CurrentDrag()->Source;
  if (source.Kind() == forms::ControlKind::Label) {
    PaintMarker(painter, area, static_cast<const forms::Label&>(source));
  }
  painter.setOpacity(1);
  paint::DrawFocusRing(painter, area);
}

/// Paints the dotted edge of the focused box, and the ring around the item that its keys act on.
void CanvasView::PaintFocus(QPainter& painter) const {
  if (const forms::Control* const item = VisibleCursorItem()) {
    const bool held = box_.ParentForm()->Pointer.HasKeyDrag();
    paint::PaintRing(painter, held ? DragRect() : RestingRectOf(*item));
  }
  paint::DrawFocusRing(painter, Viewport());
}

void CanvasView::wheelEvent(QWheelEvent* event) {
  const QPoint turn = event->angleDelta();
  if (event->modifiers().testFlag(Qt::ControlModifier)) {
    return ZoomByWheel(turn.y(), MapToPixel(*this, event->position()));
  }
  zoomTurn_ = 0;
  const bool across = event->modifiers().testFlag(Qt::ShiftModifier);
  scrollRest_ += WheelStep * (across ? turn.transposed() : turn);
  // QPoint's own division rounds; the rest is needed exactly.
  const QPoint step(scrollRest_.x() / NotchAngle, scrollRest_.y() / NotchAngle);
  scrollRest_ -= NotchAngle * step;
  box_.ScrollBy(-step.x(), -step.y());
}

void CanvasView::ZoomByWheel(int angle, QPoint about) {
  zoomTurn_ += angle;
  const forms::PixelPoint at{about.x(), about.y()};
  for (; zoomTurn_ >= NotchAngle; zoomTurn_ -= NotchAngle) box_.ZoomTo(Larger(box_.Zoom), at);
  for (; zoomTurn_ <= -NotchAngle; zoomTurn_ += NotchAngle) box_.ZoomTo(Smaller(box_.Zoom), at);
}

void CanvasView::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void CanvasView::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

}  // namespace terramark::window
