#include "window/keyrepeats.h"

#include <QGuiApplication>
#include <QScopedValueRollback>

namespace terramark::window {

namespace {

/// How long a release waits for the press that makes it a repeat, when nothing else happens.
constexpr int PatienceMilliseconds = 20;
/// No keyboard repeats a key so soon after its press; a program that types does strike it again.
constexpr std::uint64_t ShortestHoldMilliseconds = 30;

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

std::unique_ptr<QKeyEvent> Remarked(const QKeyEvent& key, bool repeat) {
  auto marked = std::make_unique<QKeyEvent>(key.type(), key.key(), key.modifiers(),
                                            key.nativeScanCode(), key.nativeVirtualKey(),
                                            key.nativeModifiers(), key.text(), repeat);
  marked->setTimestamp(key.timestamp());
  return marked;
}

/// What a window does not get while a box stands over it.
bool IsBlockedByBox(QEvent::Type type) {
  return type != QEvent::FocusOut && type != QEvent::WindowDeactivate &&
         type != QEvent::WindowBlocked && type != QEvent::Close;
}

/// Whatever must find a release told that came before it.
bool ComesAfterRelease(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::InputMethod:
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

KeyRepeats::KeyRepeats() : marksStrokes_(QGuiApplication::platformName() == "xcb") {
  patience_.setSingleShot(true);
  patience_.setInterval(PatienceMilliseconds);
  connect(&patience_, &QTimer::timeout, this, [this] { TellRelease(); });
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
  if (type == QEvent::WindowBlocked) ++blocks_;
  return ComesAfterRelease(type) && !TellRelease() && IsBlockedByBox(type);
}

bool KeyRepeats::Struck(const QKeyEvent& event) const {
  const auto key = keys_.find(CodeOf(event));
  if (key == keys_.end() || (event.isAutoRepeat() && !marksStrokes_)) return false;
  return event.timestamp() - key->second.PressedAt < ShortestHoldMilliseconds;
}

bool KeyRepeats::Pressed(QWindow& window, QKeyEvent& event) {
  const std::uint32_t code = CodeOf(event);
  const bool struck = Struck(event);
  if (!struck && waiting_ && CodeOf(*waiting_) == code &&
      waiting_->timestamp() == event.timestamp()) {
    waiting_.reset();
  }
  if (!TellRelease()) return true;
  Key& key = keys_[code];
  const bool secondHalf = key.LastRelease != 0 && key.LastRelease == event.timestamp();
  const bool repeat = !struck && (event.isAutoRepeat() || secondHalf);
  if (!repeat) {
    key = {&window, true, event.timestamp()};
  } else if (key.Window != &window || NeverRepeats(event)) {
    return true;
  }
  if (event.isAutoRepeat() == repeat) return false;
  const auto marked = Remarked(event, repeat);
  Send(window, *marked);
  event.setAccepted(marked->isAccepted());
  return true;
}

bool KeyRepeats::Released(QWindow& window, const QKeyEvent& event) {
  const bool open = TellRelease();
  Key& key = keys_[CodeOf(event)];
  key.LastRelease = event.timestamp();
  if (key.Window != &window || !open) return true;
  if (event.isAutoRepeat() && !Struck(event)) return false;
  // When the first half came too early for its second, the release has been told already.
  if (!key.Down) return true;
  waiting_ = Remarked(event, false);
  patience_.start();
  return true;
}

bool KeyRepeats::TellRelease() {
  if (!waiting_) return true;
  const std::unique_ptr<QKeyEvent> release = std::move(waiting_);
  Key& key = keys_[CodeOf(*release)];
  key.Down = false;
  const unsigned before = blocks_;
  if (key.Window) Send(*key.Window, *release);
  return blocks_ == before;
}

void KeyRepeats::Send(QWindow& window, QKeyEvent& event) {
  const QScopedValueRollback<const QEvent*> sending(sent_, &event);
  QCoreApplication::sendEvent(&window, &event);
}

}  // namespace terramark::window
