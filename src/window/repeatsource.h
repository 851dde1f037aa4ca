// Tells the repeats of a held key where Qt's events do not.
#pragma once

#include <QKeyEvent>
#include <QWindow>
#include <memory>

namespace terramark::window {

class RepeatSource {
 public:
  RepeatSource() = default;
  RepeatSource(const RepeatSource&) = delete;
  RepeatSource& operator=(const RepeatSource&) = delete;
  virtual ~RepeatSource() = default;

  /// To be called for each window when it is created, and before it is shown.
  virtual void Watch(QWindow& window) = 0;
  /// Whether the key was down already when this press of it, in a watched window, was sent.
  virtual bool IsRepeat(const QKeyEvent& press) const = 0;
};

/// Null where the system marks repeats itself and Qt passes the marks on, or where it cannot tell.
std::unique_ptr<RepeatSource> ConnectRepeatSource();

}  // namespace terramark::window
