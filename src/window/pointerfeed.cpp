#include "window/pointerfeed.h"

#include <QGuiApplication>
#include <QWindow>

#include "window/keyfeed.h"

namespace terramark::window {

namespace {

constexpr Qt::MouseButton Buttons[] = {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
constexpr char UsesMouse[] = "usesMouse";
/// A place without any control.
constexpr QPoint Nowhere(-10000, -10000);

/// 0 for a button that the forms layer does not know.
std::int16_t ButtonMask(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return forms::LeftButton;
    case Qt::RightButton:
      return forms::RightButton;
    case Qt::MiddleButton:
      return forms::MiddleButton;
    default:
      return 0;
  }
}

}  // namespace

void PointerFeed::Watch(QWidget& widget, MouseUse use) {
  widget.setProperty(UsesMouse, use == MouseUse::WidgetToo);
  widget.setMouseTracking(true);
  // Qt must not offer what a widget ignores to the widgets below it: the router would get it twice.
  widget.setAttribute(Qt::WA_NoMousePropagation);
  widget.installEventFilter(this);
}

bool PointerFeed::eventFilter(QObject* watched, QEvent* event) {
  auto& widget = *static_cast<QWidget*>(watched);
  bool forHelp = asksHelp_;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      Press(widget, *static_cast<QMouseEvent*>(event));
      // On a scaled screen Qt may deliver a press just outside a widget to it.
      if (!IsOverWidget(widget, *static_cast<QMouseEvent*>(event))) return true;
      forHelp = asksHelp_;
      break;
    case QEvent::MouseMove:
      Move(widget, *static_cast<QMouseEvent*>(event));
      break;
    case QEvent::MouseButtonRelease: {
      const auto& mouse = *static_cast<QMouseEvent*>(event);
      forHelp = forHelp || (reachesMouseUp_ && forms::AsksForHelp(KeyMask(mouse.modifiers())));
      Release(MapFromWidget(widget, mouse), mouse.button(), mouse.modifiers());
      break;
    }
    case QEvent::ContextMenu:
      return ContextMenu(widget, *static_cast<QContextMenuEvent*>(event));
    default:
      return false;
  }
  return forHelp || !(widget.isEnabled() && widget.property(UsesMouse).toBool());
}

bool PointerFeed::IsDown(Qt::MouseButton button) const {
  return (form_.Pointer.ButtonsDown() & ButtonMask(button)) != 0;
}

/// The place in the window is exact; the place in the widget is the same in whole pixels. They
/// differ while a button that was pressed here is held over another window: then the window's place
/// belongs to that one.
QPoint PointerFeed::MapFromWidget(const QWidget& widget, const QMouseEvent& event) const {
  QPointF at = widget.mapTo(inside_.window(), event.position());
  if ((event.scenePosition() - at).manhattanLength() <= 1) at = event.scenePosition();
  return MapToPixel(inside_, inside_.mapFrom(inside_.window(), at));
}

/// Whether the pixel of the event is one of the widget's.
bool PointerFeed::IsOverWidget(const QWidget& widget, const QMouseEvent& event) const {
  return widget.rect().contains(widget.mapFrom(&inside_, MapFromWidget(widget, event)));
}

void PointerFeed::Press(QWidget& widget, const QMouseEvent& event) {
  if (ButtonMask(event.button()) == 0) return;
  const QPoint at = MapFromWidget(widget, event);
  ReleaseLost(widget, event);
  holdsButton_ = true;
  if (form_.Pointer.ButtonsDown() == 0) {
    if (widget.isEnabled()) held_ = qobject_cast<QPushButton*>(&widget);
    reachesMouseUp_ = static_cast<bool>(form_.Pointer.ControlAt(at.x(), at.y()).MouseUp);
    asksHelp_ = reachesMouseUp_ && forms::AsksForHelp(KeyMask(event.modifiers()));
  }
  if (held_) held_->setDown(true);
  form_.Pointer.Press(at.x(), at.y(), ButtonMask(event.button()), KeyMask(event.modifiers()));
}

void PointerFeed::Move(const QWidget& widget, const QMouseEvent& event) {
  const QPoint at = MapFromWidget(widget, event);
  ReleaseLost(widget, event);
  if (held_) held_->setDown(held_->rect().contains(held_->mapFrom(&inside_, at)));
  form_.Pointer.Move(at.x(), at.y(), KeyMask(event.modifiers()));
}

void PointerFeed::Release(QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
  const std::int16_t code = ButtonMask(button);
  if (code == 0) return;
  if (held_) held_->setDown(false);
  if ((form_.Pointer.ButtonsDown() & ~code) == 0) {
    holdsButton_ = false;
    held_.clear();
    asksHelp_ = false;
  }
  if (form_.Pointer.CurrentDrag() && !IsUncovered(at)) at = Nowhere;
  form_.Pointer.Release(at.x(), at.y(), code, KeyMask(keys));
  if (OnRelease) OnRelease();
}

/// Whether a place of the form is visible: the window is large enough, the form is scrolled there,
/// and no other window covers it. Where the platform knows of the windows of other programs, it
/// reports none of ours there.
bool PointerFeed::IsUncovered(QPoint at) const {
  const bool inView = inside_.parentWidget()->rect().contains(inside_.mapToParent(at));
  if (!inView || !inside_.rect().contains(at)) return false;
  const QWindow* over = QGuiApplication::topLevelAt(inside_.mapToGlobal(at));
  const QString platform = QGuiApplication::platformName();
  if (over == nullptr) return platform != "xcb" && platform != "windows";
  return over == inside_.window()->windowHandle();
}

/// A menu or a box that opened while a button was down has received its release.
void PointerFeed::ReleaseLost(const QWidget& widget, const QMouseEvent& event) {
  for (const Qt::MouseButton button : Buttons) {
    const bool pressedNow = event.type() != QEvent::MouseMove && event.button() == button;
    if (!IsDown(button) || (event.buttons().testFlag(button) && !pressedNow)) continue;
    form_.Pointer.CancelDrag();
    Release(MapFromWidget(widget, event), button, event.modifiers());
  }
}

/// The context menu of a text box receives the release of the button. With Shift a press asks for
/// help instead.
bool PointerFeed::ContextMenu(const QWidget& widget, const QContextMenuEvent& event) {
  if (event.modifiers().testFlag(Qt::ShiftModifier)) return true;
  if (!widget.property(UsesMouse).toBool()) return true;
  const forms::PixelPoint at = form_.Pointer.Position();
  if (IsDown(Qt::RightButton)) Release({at.X, at.Y}, Qt::RightButton, event.modifiers());
  return false;
}

}  // namespace terramark::window
