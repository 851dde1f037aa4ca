#include <windows.h>

#include <QAbstractEventDispatcher>
#include <QAbstractNativeEventFilter>
#include <QByteArray>
#include <QGuiApplication>
#include <QObject>
#include <cstdint>
#include <memory>
#include <optional>
#include <queue>
#include <unordered_map>

#include "window/repeatsource.h"

namespace terramark::window {

namespace {

/// Windows marks each message of a key that was down already. Qt does not pass that on: it has a
/// record of its own, in which a key stays down that is released in a dialog of the system, whose
/// next press it therefore takes for a repeat.
class WindowsKeyboard final : public RepeatSource, public QAbstractNativeEventFilter {
 public:
  WindowsKeyboard();

  void Watch(QWindow& /*window*/) override {}
  bool IsRepeat(const QKeyEvent& event) override;

  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

 private:
  bool IsWaitingRepeat(const QKeyEvent& press);

  /// The messages of each key that have not come as events yet, by scan code: whether they are
  /// repeats. Qt collects messages before it sends the events of them, in the same order. Some
  /// messages come as no event: those of an input method, and combinations that the system takes.
  /// They are forgotten when Qt begins to wait.
  std::unordered_map<std::uint32_t, std::queue<bool>> waiting_;
  /// The verdict on a press that has come as an override only; it comes again as a press.
  std::optional<bool> overridden_;
  /// Ends the connection to the dispatcher with this object.
  QObject connected_;
};

WindowsKeyboard::WindowsKeyboard() {
  // All events have been sent by then. A message left over would give its mark to a later press.
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                   &connected_, [this] { waiting_.clear(); });
}

bool WindowsKeyboard::nativeEventFilter(const QByteArray& /*type*/, void* message,
                                        qintptr* /*result*/) {
  // As the system documents the parameter of these messages; a scan code with the bit for the
  // second key of two, as in QKeyEvent.
  constexpr int ScanCodeShift = 16;
  constexpr LPARAM ScanCodeBits = 0x1FF;
  constexpr LPARAM WasDown = LPARAM{1} << 30;
  const MSG& key = *static_cast<const MSG*>(message);
  if (key.message != WM_KEYDOWN && key.message != WM_SYSKEYDOWN) return false;
  const auto place = static_cast<std::uint32_t>(key.lParam >> ScanCodeShift & ScanCodeBits);
  waiting_[place].push((key.lParam & WasDown) != 0);
  return false;
}

bool WindowsKeyboard::IsWaitingRepeat(const QKeyEvent& press) {
  auto& waiting = waiting_[press.nativeScanCode()];
  // A loop of the system's own has passed the message on.
  if (waiting.empty()) return press.isAutoRepeat();
  const bool repeat = waiting.front();
  waiting.pop();
  return repeat;
}

bool WindowsKeyboard::IsRepeat(const QKeyEvent& event) {
  if (event.type() == QEvent::KeyRelease) return event.isAutoRepeat();
  const bool again = event.type() == QEvent::KeyPress && overridden_;
  const bool repeat = again ? *overridden_ : IsWaitingRepeat(event);
  overridden_ = event.type() == QEvent::ShortcutOverride ? std::optional(repeat) : std::nullopt;
  return repeat;
}

}  // namespace

std::unique_ptr<RepeatSource> ConnectRepeatSource() {
  auto keyboard = std::make_unique<WindowsKeyboard>();
  qGuiApp->installNativeEventFilter(keyboard.get());
  return keyboard;
}

}  // namespace terramark::window
