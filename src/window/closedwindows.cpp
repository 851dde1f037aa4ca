#include "window/closedwindows.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

namespace terramark::window {

namespace {

bool IsUserInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
    case QEvent::Wheel:
      return true;
    default:
      return false;
  }
}

}  // namespace

ClosedWindows::ClosedWindows() {
  qGuiApp->installEventFilter(this);
}

bool ClosedWindows::eventFilter(QObject* watched, QEvent* event) {
  if (!IsUserInput(event->type())) return false;
  const auto* const window = qobject_cast<QWindow*>(watched);
  // A popup list passes on the events that are left for it to the box that it belongs to.
  return window != nullptr && !window->isVisible() && window->type() != Qt::Popup;
}

}  // namespace terramark::window
