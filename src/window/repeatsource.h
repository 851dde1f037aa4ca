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
  /// Whether the key was down already when this event of it was sent to a watched window; a release
  /// may be that of a repeat. To be asked once for each event, in their order.
  virtual bool IsRepeat(const QKeyEvent& event) = 0;
};

/// Null where Qt's events say it, or where nobody can tell.
std::unique_ptr<RepeatSource> ConnectRepeatSource();

}  // namespace terramark::window
