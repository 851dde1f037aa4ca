// The keyboard of an X server: tells a held key's repeats from presses.
#pragma once

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QKeyEvent>
#include <QWindow>
#include <bitset>
#include <cstdint>

namespace terramark::window {

/// By itself an X server shows a repeat as a release and a press, and one cannot tell them from a
/// key that is struck again. Asked for detectable repeats it sends presses alone: then a press of a
/// key that is down is a repeat, and each release is one.
class X11Keyboard final : public QAbstractNativeEventFilter {
 public:
  /// The connection is that of the application.
  explicit X11Keyboard(xcb_connection_t* connection) : connection_(connection) {}

  /// Asks the server; false when it has no such thing. Then a press that IsRepeat is one all the
  /// same, but not each repeat is one that IsRepeat.
  bool AskForDetectableRepeats();
  /// Lets the server tell what is down each time that the window gets the keyboard: what went down
  /// or came up before was told to others.
  void Watch(QWindow& window);
  /// Whether the key was down already when this press of it, of a watched window, was sent.
  static bool IsRepeat(const QKeyEvent& press);

  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

 private:
  xcb_connection_t* connection_;
  /// By key code, in the order in which the server tells of them.
  std::bitset<256> down_;
};

}  // namespace terramark::window
