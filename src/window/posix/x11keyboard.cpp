#include "window/posix/x11keyboard.h"

#include <QByteArray>
#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <type_traits>

// A field in that header has the name of a C++ keyword.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

namespace terramark::window {

namespace {

/// No modifier or button uses this bit of an event's state. Set on a repeat, it stays in the event,
/// through an input method too, and appears in nativeModifiers.
constexpr std::uint16_t RepeatBit = 1U << 15U;
/// The top bit is set in events that another program sent.
constexpr std::uint8_t TypeBits = 0x7F;
constexpr std::size_t KeysInAByte = 8;

/// The caller frees replies.
template <typename Reply>
using Owned = std::unique_ptr<Reply, std::integral_constant<void (*)(void*), &std::free>>;

}  // namespace

bool X11Keyboard::AskForDetectableRepeats() {
  const Owned<xcb_xkb_use_extension_reply_t> use(xcb_xkb_use_extension_reply(
      connection_, xcb_xkb_use_extension(connection_, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION),
      nullptr));
  if (!use || use->supported == 0) return false;
  constexpr std::uint32_t Detectable = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
  const Owned<xcb_xkb_per_client_flags_reply_t> flags(
      xcb_xkb_per_client_flags_reply(connection_,
                                     xcb_xkb_per_client_flags(connection_, XCB_XKB_ID_USE_CORE_KBD,
                                                              Detectable, Detectable, 0, 0, 0),
                                     nullptr));
  return flags && (flags->value & Detectable) != 0;
}

void X11Keyboard::Watch(QWindow& window) {
  const auto id = static_cast<xcb_window_t>(window.winId());
  const Owned<xcb_get_window_attributes_reply_t> now(xcb_get_window_attributes_reply(
      connection_, xcb_get_window_attributes(connection_, id), nullptr));
  if (!now) return;
  const std::uint32_t mask = now->your_event_mask | XCB_EVENT_MASK_KEYMAP_STATE;
  xcb_change_window_attributes(connection_, id, XCB_CW_EVENT_MASK, &mask);
}

bool X11Keyboard::IsRepeat(const QKeyEvent& event) {
  return event.type() != QEvent::KeyRelease && (event.nativeModifiers() & RepeatBit) != 0;
}

bool X11Keyboard::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/) {
  if (type != "xcb_generic_event_t") return false;
  const auto* const event = static_cast<const xcb_generic_event_t*>(message);
  switch (event->response_type & TypeBits) {
    case XCB_KEY_PRESS: {
      auto& press = *static_cast<xcb_key_press_event_t*>(message);
      if (down_[press.detail]) press.state |= RepeatBit;
      down_.set(press.detail);
      break;
    }
    case XCB_KEY_RELEASE:
      down_.reset(static_cast<xcb_key_release_event_t*>(message)->detail);
      break;
    case XCB_KEYMAP_NOTIFY: {
      // The event has no byte for the first eight key codes, which no key has.
      const auto& map = *static_cast<xcb_keymap_notify_event_t*>(message);
      for (std::size_t key = KeysInAByte; key < down_.size(); ++key) {
        down_.set(key, (map.keys[key / KeysInAByte - 1] >> (key % KeysInAByte) & 1U) != 0);
      }
      break;
    }
    default:
      break;
  }
  return false;
}

std::unique_ptr<RepeatSource> ConnectRepeatSource() {
  // Other platforms may have an X11 connection too, beside their own keyboards.
  if (QGuiApplication::platformName() != "xcb") return nullptr;
  const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr) return nullptr;
  auto keyboard = std::make_unique<X11Keyboard>(x11->connection());
  if (!keyboard->AskForDetectableRepeats()) return nullptr;
  qGuiApp->installNativeEventFilter(keyboard.get());
  return keyboard;
}

}  // namespace terramark::window
