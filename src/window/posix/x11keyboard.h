// The keyboard of an X server: distinguishes the repeats of a held key from presses.
#pragma once

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <bitset>
#include <cstdint>

#include "window/repeatsource.h"

namespace terramark::window {

/// By default an X server reports a repeat as a release and a press, like a key that is struck
/// again. With detectable repeats it reports presses alone: then a press of a key that is down is a
/// repeat, and each release is a release.
class X11Keyboard final : public RepeatSource, public QAbstractNativeEventFilter {
 public:
  /// The connection must be that of the application.
  explicit X11Keyboard(xcb_connection_t* connection) : connection_(connection) {}

  /// Asks the server; false when it has no detectable repeats. Then a press for which IsRepeat is
  /// true is still a repeat, but not for every repeat IsRepeat is true.
  bool AskForDetectableRepeats();
  /// Has the server report which keys are down each time that the window gets the focus: what was
  /// pressed or released before went to other windows.
  void Watch(QWindow& window) override;
  bool IsRepeat(const QKeyEvent& event) override;

  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

 private:
  xcb_connection_t* connection_;
  /// Which keys are down, by key code, in the order of the server's events.
  std::bitset<256> down_;
};

}  // namespace terramark::window
