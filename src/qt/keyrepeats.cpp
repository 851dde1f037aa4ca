#include "qt/keyrepeats.h"

#include <QGuiApplication>
#include <QScopedValueRollback>

namespace terramark::qt {

namespace {

/// How long a release waits for the press that makes it a repeat, when nothing else happens.
constexpr int PatienceMilliseconds = 20;

/// The place on the keyboard: with the Shift key let go in between, a key goes up under another
/// name. Where the platform tells no places, the name.
std::uint32_t CodeOf(const QKeyEvent& key) {
  constexpr std::uint32_t Named = 1U << 31U;
  const std::uint32_t place = key.nativeScanCode();
  return place != 0 ? place : Named | static_cast<std::uint32_t>(key.key());
}

/// Keys that boxes and dialogs obey at each press, a repeat or not.
bool NeverRepeats(const QKeyEvent& key) {
  return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Escape;
}

/// Whatever must find a release told that came before it.
bool ComesAfterRelease(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::FocusOut:
    case QEvent::WindowDeactivate:
    case QEvent::WindowBlocked:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

}  // namespace

KeyRepeats::KeyRepeats() {
  patience_.setSingleShot(true);
  patience_.setInterval(PatienceMilliseconds);
  connect(&patience_, &QTimer::timeout, this, &KeyRepeats::TellRelease);
  QGuiApplication::instance()->installEventFilter(this);
}

bool KeyRepeats::eventFilter(QObject* watched, QEvent* event) {
  if (event == sent_) return false;
  const QEvent::Type type = event->type();
  if (type == QEvent::KeyPress || type == QEvent::KeyRelease) {
    // From the window a key goes on to its widgets, past here again.
    auto* window = qobject_cast<QWindow*>(watched);
    if (window == nullptr) return false;
    auto& key = *static_cast<QKeyEvent*>(event);
    return type == QEvent::KeyPress ? Pressed(*window, key) : Released(*window, key);
  }
  if (ComesAfterRelease(type)) TellRelease();
  return false;
}

bool KeyRepeats::Pressed(QWindow& window, QKeyEvent& event) {
  const std::uint32_t code = CodeOf(event);
  if (waiting_ && CodeOf(*waiting_) == code && waiting_->timestamp() == event.timestamp()) {
    waiting_.reset();
  }
  TellRelease();
  Key& key = keys_[code];
  const bool secondHalf = key.LastRelease != 0 && key.LastRelease == event.timestamp();
  if (!event.isAutoRepeat() && !secondHalf) {
    key = {&window, true};
    return false;
  }
  if (key.Window != &window || NeverRepeats(event)) return true;
  if (event.isAutoRepeat()) return false;
  QKeyEvent marked(QEvent::KeyPress, event.key(), event.modifiers(), event.nativeScanCode(),
                   event.nativeVirtualKey(), event.nativeModifiers(), event.text(), true);
  marked.setTimestamp(event.timestamp());
  Send(window, marked);
  event.setAccepted(marked.isAccepted());
  return true;
}

bool KeyRepeats::Released(QWindow& window, const QKeyEvent& event) {
  TellRelease();
  Key& key = keys_[CodeOf(event)];
  key.LastRelease = event.timestamp();
  if (key.Window != &window) return true;
  if (event.isAutoRepeat()) return false;
  // When the first half came too early for its second, the release has been told already.
  if (!key.Down) return true;
  waiting_.reset(event.clone());
  patience_.start();
  return true;
}

void KeyRepeats::TellRelease() {
  if (!waiting_) return;
  const std::unique_ptr<QKeyEvent> release = std::move(waiting_);
  Key& key = keys_[CodeOf(*release)];
  key.Down = false;
  if (key.Window) Send(*key.Window, *release);
}

void KeyRepeats::Send(QWindow& window, QKeyEvent& event) {
  const QScopedValueRollback<const QEvent*> sending(sent_, &event);
  QCoreApplication::sendEvent(&window, &event);
}

}  // namespace terramark::qt
