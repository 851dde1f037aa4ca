// Tells a held key's repeats from presses, for all windows of the application.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QPointer>
#include <QWindow>
#include <cstdint>
#include <memory>
#include <unordered_map>

#include "window/x11keyboard.h"

namespace terramark::window {

/// Marks repeats as such before a window sees them. The repeats and the release of a key reach only
/// the window in which it went down: a box that comes up under a held key knows nothing of it.
/// Enter and Escape do not repeat at all, since boxes and dialogs obey them at each press.
class KeyRepeats : public QObject {
 public:
  /// Watches the application as long as this lives; before the first window is shown.
  KeyRepeats();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Pressed(QWindow& window, QKeyEvent& event);
  bool Released(QWindow& window, QKeyEvent& event);
  bool IsRepeat(const QKeyEvent& press) const;
  /// Whether a key went down in the window.
  bool WentDownIn(const QWindow& window, const QKeyEvent& event) const;
  /// The event as it stands when it has the mark already; else a copy with it, in the event's
  /// place, at once. Whether it was the copy.
  bool ResendMarked(QWindow& window, QKeyEvent& event, bool repeat);

  /// Null where the platform marks repeats itself.
  std::unique_ptr<X11Keyboard> x11_;
  /// In which window each key that is down went down, by ScanCodeOf.
  std::unordered_map<std::uint32_t, QPointer<QWindow>> down_;
  /// The copy that is being told.
  const QEvent* copy_ = nullptr;
};

}  // namespace terramark::window
