#include "window/formview.h"

#include <QEvent>
#include <QLabel>
#include <algorithm>

#include "forms/geometry.h"
#include "paint/cp1252.h"
#include "paint/screencolour.h"
#include "window/appstyle.h"
#include "window/canvasview.h"
#include "window/controlview.h"

namespace terramark::window {

namespace {

constexpr int DragScrollMilliseconds = 20;

/// The canvas draws the labels on a picture.
bool OnCanvas(const forms::Control& control) {
  return control.Container()->Kind() == forms::ControlKind::PictureBox;
}

}  // namespace

FormView::FormView(forms::Form& form, QWidget& parent)
    : QWidget(&parent), form_(form), pointer_(form, *this), keys_(form) {
  setObjectName("inside");
  pointer_.Watch(*this, MouseUse::RouterOnly);
  keys_.Watch(*this, nullptr);
  keys_.Watch(*parent.window(), nullptr);
  FormChanged(forms::PropertyId::BackColor);
  for (forms::Control* control : form.Controls()) ControlAdded(*control);
  InitTabOrder();
  SetLabelBuddies();
  dragScroll_.setInterval(DragScrollMilliseconds);
  connect(&dragScroll_, &QTimer::timeout, this, [this] { form_.Pointer.AutoScroll(); });
  form.Observe(this);
}

FormView::~FormView() {
  form_.Observe(nullptr);
  // Otherwise a container would delete the widgets in it first.
  while (!views_.empty()) views_.pop_back();
}

void FormView::ControlAdded(forms::Control& control) {
  if (ViewOf(control) != nullptr) return;
  forms::Control& container = *control.Container();
  const bool inForm = &container == &form_;
  // The control table may have a control before the frame that contains it.
  if (!inForm) ControlAdded(container);
  if (OnCanvas(control)) {
    accessibility_.Changed(control);
    return ShowOnCanvas(control);
  }
  views_.push_back(MakeView(control, inForm ? *this : ViewOf(container)->Widget()));
  WatchInput(*views_.back());
  accessibility_.Added(*views_.back());
}

/// Watches the mouse over a view and over its parts, and the view's keys.
void FormView::WatchInput(ControlView& view) {
  QWidget& widget = view.Widget();
  pointer_.Watch(widget, view.Mouse());
  for (QWidget* part : widget.findChildren<QWidget*>()) pointer_.Watch(*part, MouseUse::WidgetToo);
  // A container without focus gets only the keys that the widgets in it have ignored, and they have
  // been handled there.
  if (widget.focusPolicy() != Qt::NoFocus) keys_.Watch(widget, &view.Shown());
  scrolling_.Watch(view);
}

void FormView::InitTabOrder() {
  QWidget* last = nullptr;
  for (const forms::Control* control : form_.Controls()) {
    QWidget* widget = WidgetOf(*control);
    if (widget == nullptr || widget->focusPolicy() == Qt::NoFocus) continue;
    if (last != nullptr) setTabOrder(last, widget);
    if (last == nullptr) widget->setFocus();
    last = widget;
  }
}

/// Connects a label with the control that it names, for assistive tools.
void FormView::SetLabelBuddies() {
  for (const forms::Control* control : form_.Controls()) {
    if (control->Kind() != forms::ControlKind::Label || OnCanvas(*control)) continue;
    const forms::Control* named = static_cast<const forms::Label*>(control)->LabelFor;
    if (named != nullptr) static_cast<QLabel*>(WidgetOf(*control))->setBuddy(WidgetOf(*named));
  }
}

QSize FormView::DesignSize() const {
  const forms::PixelRect bounds = forms::PixelBounds(form_);
  return {bounds.Width, bounds.Height};
}

void FormView::ApplyWindowProperties() {
  window()->setWindowIcon(WindowIcon());
  FormChanged(forms::PropertyId::Caption);
  FormChanged(forms::PropertyId::Left);
}

void FormView::FormChanged(forms::PropertyId id) {
  switch (id) {
    case forms::PropertyId::Caption:
      window()->setWindowTitle(paint::FromCp1252(form_.Caption));
      break;
    case forms::PropertyId::Left:
    case forms::PropertyId::Top: {
      const forms::PixelPoint place = forms::PlaceOnScreen(form_);
      window()->move(place.X, place.Y);
      break;
    }
    case forms::PropertyId::BackColor: {
      QPalette colours = palette();
      colours.setColor(QPalette::Window, paint::ScreenColour(form_.BackColor));
      setPalette(colours);
      setAutoFillBackground(true);
      break;
    }
    default:
      break;
  }
}

ControlView* FormView::ViewOf(const forms::Control& control) const {
  const auto view = std::find_if(views_.begin(), views_.end(), [&control](const auto& candidate) {
    return &candidate->Shown() == &control;
  });
  return view == views_.end() ? nullptr : view->get();
}

QWidget* FormView::WidgetOf(const forms::Control& control) const {
  const ControlView* view = ViewOf(control);
  return view == nullptr ? nullptr : &view->Widget();
}

void FormView::ControlRemoved(forms::Control& control) {
  accessibility_.Forget(control);
  for (const auto& view : views_) {
    if (auto* canvas = dynamic_cast<CanvasView*>(view.get())) canvas->ForgetLabel(control);
  }
  std::erase_if(views_, [&control](const auto& view) { return &view->Shown() == &control; });
}

void FormView::PropertyChanged(forms::Control& control, forms::PropertyId id) {
  accessibility_.Changed(control);
  if (&control == &form_) return FormChanged(id);
  if (OnCanvas(control)) return ShowOnCanvas(control);
  if (ControlView* view = ViewOf(control)) view->Changed(id);
}

void FormView::ShowOnCanvas(const forms::Control& label) {
  static_cast<CanvasView*>(ViewOf(*label.Container()))->LabelChanged(label);
}

void FormView::Restacked(forms::Control& control) {
  if (OnCanvas(control)) return ShowOnCanvas(control);
  for (const forms::Control* inOrder : control.Container()->Children()) {
    if (QWidget* widget = WidgetOf(*inOrder)) widget->raise();
  }
}

void FormView::FocusMoved(forms::Control& control) {
  if (&control == &form_) return setFocus();
  if (QWidget* widget = WidgetOf(control)) widget->setFocus();
}

void FormView::Refreshed(forms::Control& control) {
  accessibility_.Changed(control);
  if (OnCanvas(control)) return ShowOnCanvas(control);
  if (QWidget* widget = WidgetOf(control)) widget->update();
}

void FormView::PointerMoved() {
  for (const auto& view : views_) {
    if (auto* canvas = dynamic_cast<CanvasView*>(view.get())) canvas->PointerMoved();
  }
  const bool dragging = form_.Pointer.HasMouseDrag();
  // A key drag is reported to assistive tools; who drags with the mouse sees it.
  if (!dragging) accessibility_.Changed(form_);
  if (dragging == dragScroll_.isActive()) return;
  if (dragging) {
    dragScroll_.start();
  } else {
    dragScroll_.stop();
  }
}

void FormView::Unloaded() {
  if (OnUnload) OnUnload();
}

bool FormView::event(QEvent* event) {
  if (event->type() == QEvent::WindowDeactivate) form_.Pointer.CancelDrag();
  return QWidget::event(event);
}

}  // namespace terramark::window
