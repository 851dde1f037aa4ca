#include "window/keyrepeats.h"

#include <QGuiApplication>
#include <QPlatformSurfaceEvent>
#include <QScopedValueRollback>

namespace terramark::window {

namespace {

/// The key's place on the keyboard: when Shift is released in between, a key is released under
/// another name than it was pressed. Where the platform gives no scan codes, the name.
std::uint32_t ScanCodeOf(const QKeyEvent& key) {
  constexpr std::uint32_t Named = 1U << 31U;
  const std::uint32_t place = key.nativeScanCode();
  return place != 0 ? place : Named | static_cast<std::uint32_t>(key.key());
}

bool NeverRepeats(const QKeyEvent& key) {
  return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Escape;
}

bool IsNew(const QEvent& surface) {
  return static_cast<const QPlatformSurfaceEvent&>(surface).surfaceEventType() ==
         QPlatformSurfaceEvent::SurfaceCreated;
}

}  // namespace

KeyRepeats::KeyRepeats() : source_(ConnectRepeatSource()) {
  qGuiApp->installEventFilter(this);
}

bool KeyRepeats::eventFilter(QObject* watched, QEvent* event) {
  // The window passes the key on to its widgets, and this filter sees it again there.
  auto* const window = qobject_cast<QWindow*>(watched);
  if (window == nullptr || event == copy_) return false;
  switch (event->type()) {
    case QEvent::PlatformSurface:
      if (source_ && IsNew(*event)) source_->Watch(*window);
      return false;
    // A key that a shortcut takes comes as this event only.
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
      return Pressed(*window, *static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
      return Released(*window, *static_cast<QKeyEvent*>(event));
    default:
      return false;
  }
}

bool KeyRepeats::IsRepeat(const QKeyEvent& event) {
  return source_ ? source_->IsRepeat(event) : event.isAutoRepeat();
}

bool KeyRepeats::WentDownIn(const QWindow& window, const QKeyEvent& event) const {
  const auto key = down_.find(ScanCodeOf(event));
  return key != down_.end() && key->second == &window;
}

bool KeyRepeats::Pressed(QWindow& window, QKeyEvent& event) {
  const bool repeat = IsRepeat(event);
  if (!repeat) {
    down_[ScanCodeOf(event)] = &window;
  } else if (NeverRepeats(event) || !WentDownIn(window, event)) {
    // An override that nobody accepts would go on to the shortcuts.
    event.accept();
    return true;
  }
  return ResendMarked(window, event, repeat);
}

bool KeyRepeats::Released(QWindow& window, QKeyEvent& event) {
  const bool repeat = IsRepeat(event);
  const bool here = WentDownIn(window, event);
  if (!repeat) down_.erase(ScanCodeOf(event));
  return !here || ResendMarked(window, event, repeat);
}

bool KeyRepeats::ResendMarked(QWindow& window, QKeyEvent& event, bool repeat) {
  if (event.isAutoRepeat() == repeat) return false;
  QKeyEvent marked(event.type(), event.key(), event.modifiers(), event.nativeScanCode(),
                   event.nativeVirtualKey(), event.nativeModifiers(), event.text(), repeat);
  marked.setTimestamp(event.timestamp());
  marked.setAccepted(event.isAccepted());
  {
    const QScopedValueRollback<const QEvent*> telling(copy_, &marked);
    QCoreApplication::sendEvent(&window, &marked);
  }
  event.setAccepted(marked.isAccepted());
  return true;
}

}  // namespace terramark::window
