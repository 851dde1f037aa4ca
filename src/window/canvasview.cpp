#include "window/canvasview.h"

#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <algorithm>

#include "forms/form.h"
#include "forms/geometry.h"
#include "window/labelview.h"
#include "window/look.h"

namespace terramark::window {

namespace {

constexpr int WheelStep = 48;  // pixels a notch
constexpr int NotchAngle = 120;
constexpr double AirOpacity = 0.75;

void LayBar(QScrollBar& bar, const QRect& place, int extent, int view, int value, bool shown) {
  const QSignalBlocker still(&bar);
  bar.setGeometry(place);
  bar.setRange(0, std::max(0, extent - view));
  bar.setPageStep(view);
  bar.setSingleStep(WheelStep / 3);
  bar.setValue(value);
  bar.setVisible(shown);
}

}  // namespace

CanvasView::CanvasView(forms::PictureBox& box, QWidget& container)
    : QWidget(&container),
      ControlView(box, *this),
      box_(box),
      across_(Qt::Horizontal, this),
      down_(Qt::Vertical, this) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  const auto scroll = [this] { box_.ScrollTo(across_.value(), down_.value()); };
  connect(&across_, &QScrollBar::valueChanged, this, scroll);
  connect(&down_, &QScrollBar::valueChanged, this, scroll);
  LayBars();
}

void CanvasView::LayBars() {
  const int width = box_.ViewWidth();
  const int height = box_.ViewHeight();
  const int thick = forms::PictureBox::ScrollBarExtent;
  LayBar(across_, {0, height, width, thick}, box_.Image().Width, width, box_.ScrollLeft,
         box_.ScrollsAcross());
  LayBar(down_, {width, 0, thick, height}, box_.Image().Height, height, box_.ScrollTop,
         box_.ScrollsDown());
}

void CanvasView::ShowOwn(forms::PropertyId /*id*/) {
  LayBars();
  flightSeen_ = Flight();
  update();
}

void CanvasView::LabelChanged(const forms::Control& label) {
  QRect& seen = seen_[&label];
  const QRect now = label.Visible ? BoundsOf(label) : QRect();
  update(InBox(seen));
  update(InBox(now));
  seen = now;
}

void CanvasView::LabelGone(const forms::Control& label) {
  const auto seen = seen_.find(&label);
  if (seen == seen_.end()) return;
  update(InBox(seen->second));
  seen_.erase(seen);
}

QRect CanvasView::Flight() const {
  const auto flight = box_.Owner()->Pointer.InFlight();
  if (!flight || flight->Source.Container() != &box_) return {};
  return InBox({QPoint(flight->Corner.X, flight->Corner.Y), BoundsOf(flight->Source).size()});
}

void CanvasView::DragMoved() {
  update(flightSeen_);
  flightSeen_ = Flight();
  update(flightSeen_);
}

QRect CanvasView::InBox(const QRect& onPicture) const {
  const forms::PixelPoint corner = forms::InBox(box_, {onPicture.x(), onPicture.y()});
  return {QPoint(corner.X, corner.Y), onPicture.size()};
}

void CanvasView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const QRect view(0, 0, box_.ViewWidth(), box_.ViewHeight());
  if (!view.contains(event->rect())) {
    painter.fillRect(event->rect(), palette().color(QPalette::Button));
  }
  painter.setClipRect(view, Qt::IntersectClip);
  PaintImage(painter, event->rect() & view);
  for (const forms::Control* child : box_.Children()) {
    if (!child->Visible || child->Kind() != forms::ControlKind::Label) continue;
    const QRect area = InBox(BoundsOf(*child));
    if (!event->rect().intersects(area)) continue;
    painter.setClipRect(area & view);
    DrawLabel(painter, area, static_cast<const forms::Label&>(*child));
  }
  painter.setClipRect(view);
  PaintFlight(painter);
}

void CanvasView::PaintImage(QPainter& painter, const QRect& part) const {
  const forms::Raster& raster = box_.Image();
  // Shares the raster's memory; nothing is copied but what goes on the screen.
  const QImage image(reinterpret_cast<const uchar*>(raster.Pixels.data()), raster.Width,
                     raster.Height, QImage::Format_RGB32);
  const forms::PixelPoint from = forms::OnPicture(box_, {part.x(), part.y()});
  painter.drawImage(part.topLeft(), image, QRect(QPoint(from.X, from.Y), part.size()));
}

void CanvasView::PaintFlight(QPainter& painter) const {
  const auto flight = box_.Owner()->Pointer.InFlight();
  const QRect area = Flight();
  if (area.isEmpty() || flight->Source.Kind() != forms::ControlKind::Label) return;
  painter.setOpacity(AirOpacity);
  DrawLabel(painter, area, static_cast<const forms::Label&>(flight->Source));
  painter.setOpacity(1);
  painter.setPen(QPen(Qt::white, 1, Qt::DashLine));
  painter.drawRect(area.adjusted(0, 0, -1, -1));
}

void CanvasView::wheelEvent(QWheelEvent* event) {
  const QPoint turn = event->angleDelta() * WheelStep / NotchAngle;
  box_.ScrollBy(-turn.x(), -turn.y());
}

}  // namespace terramark::window
