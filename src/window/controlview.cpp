#include "window/controlview.h"

#include <QWindow>
#include <QtMath>

#include "forms/form.h"
#include "forms/geometry.h"
#include "paint/cp1252.h"
#include "paint/devicepixels.h"
#include "paint/lettering.h"
#include "window/barview.h"
#include "window/buttonview.h"
#include "window/canvasview.h"
#include "window/frameview.h"
#include "window/labelview.h"
#include "window/memoview.h"
#include "window/textview.h"

namespace terramark::window {

namespace {

/// In device pixels: a place that is scaled there and back may come out smaller by so little.
constexpr double RoundingTolerance = 1e-4;

/// Control arrays begin at element 0, so the index alone does not distinguish an element from a
/// single control.
bool InArray(const forms::Control& control) {
  for (const forms::Control* other : control.ParentForm()->Controls()) {
    if (other != &control && other->Name() == control.Name()) return true;
  }
  return false;
}

QString ObjectName(const forms::Control& control) {
  const QString name = paint::FromCp1252(control.Name());
  return InArray(control) ? QString("%1(%2)").arg(name).arg(control.Index()) : name;
}

QFont FontOf(const forms::Control& control) {
  const bool formsOwn = control.Kind() == forms::ControlKind::CommandButton ||
                        control.Kind() == forms::ControlKind::Frame;
  return (formsOwn ? paint::FormFont : paint::TextFont)(control.ParentForm()->Host);
}

}  // namespace

ControlView::ControlView(forms::Control& control, QWidget& widget)
    : control_(control), widget_(widget) {
  const QString hint = paint::FromCp1252(control.ToolTipText);
  widget.setObjectName(ObjectName(control));
  widget.setToolTip(hint);
  widget.setAccessibleName(paint::FromCp1252(control.AccessibleName));
  widget.setAccessibleDescription(hint);
  widget.setFont(FontOf(control));
  widget.setGeometry(BoundsOf(control));
  widget.setEnabled(control.Enabled);
  widget.setVisible(control.Visible);
}

void ControlView::Changed(forms::PropertyId id) {
  switch (id) {
    case forms::PropertyId::Left:
    case forms::PropertyId::Top:
    case forms::PropertyId::Width:
    case forms::PropertyId::Height:
      widget_.setGeometry(BoundsOf(control_));
      break;
    case forms::PropertyId::Visible:
      widget_.setVisible(control_.Visible);
      break;
    case forms::PropertyId::Enabled:
      widget_.setEnabled(control_.Enabled);
      break;
    default:
      ShowOwn(id);
  }
}

QRect BoundsOf(const forms::Control& control) {
  const forms::PixelRect bounds = forms::PixelBounds(control);
  return {bounds.Left, bounds.Top, bounds.Width, bounds.Height};
}

QPoint MapToPixel(const QWidget& widget, const QPointF& place) {
  const QWidget& window = *widget.window();
  const QPointF inside = widget.mapTo(&window, place);
  // Events use the scale of the window itself; the scale of the painter is rounded.
  const double told = window.windowHandle()->devicePixelRatio();
  const double painted = window.devicePixelRatioF();
  const auto shown = [&](double at) {
    return paint::MapFromDevice(qFloor(told * at + RoundingTolerance), painted, 0);
  };
  return widget.mapFrom(&window, QPoint(shown(inside.x()), shown(inside.y())));
}

std::unique_ptr<ControlView> MakeView(forms::Control& control, QWidget& container) {
  switch (control.Kind()) {
    case forms::ControlKind::Label:
      return std::make_unique<LabelView>(static_cast<forms::Label&>(control), container);
    case forms::ControlKind::CommandButton:
      return std::make_unique<ButtonView>(static_cast<forms::CommandButton&>(control), container);
    case forms::ControlKind::Frame:
      return std::make_unique<FrameView>(static_cast<forms::Frame&>(control), container);
    case forms::ControlKind::VScrollBar:
      return std::make_unique<BarView>(static_cast<forms::VScrollBar&>(control), container);
    case forms::ControlKind::PictureBox:
      return std::make_unique<CanvasView>(static_cast<forms::PictureBox&>(control), container);
    case forms::ControlKind::TextBox: {
      auto& box = static_cast<forms::TextBox&>(control);
      if (box.MultiLine) return std::make_unique<MemoView>(box, container);
      return std::make_unique<TextView>(box, container);
    }
    case forms::ControlKind::Form:
      break;
  }
  return nullptr;
}

}  // namespace terramark::window
