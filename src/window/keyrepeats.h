// Distinguishes the repeats of a held key from presses, for all windows of the application.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QPointer>
#include <QWindow>
#include <cstdint>
#include <memory>
#include <unordered_map>

#include "window/repeatsource.h"

namespace terramark::window {

/// Marks repeats before a window receives them. The repeats and the release of a key reach only the
/// window in which it was pressed: a box that opens under a held key does not get them. Enter and
/// Escape do not repeat at all, since boxes and dialogs act at each press.
class KeyRepeats : public QObject {
 public:
  /// Filters the events of the application for as long as this object lives; to be made before the
  /// first window is shown.
  KeyRepeats();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Pressed(QWindow& window, QKeyEvent& event);
  bool Released(QWindow& window, QKeyEvent& event);
  bool IsRepeat(const QKeyEvent& event);
  /// Whether the key was pressed in the window.
  bool WentDownIn(const QWindow& window, const QKeyEvent& event) const;
  /// An event with the right mark passes. Otherwise a marked copy is sent in its place, at once.
  /// Returns whether the event is that copy.
  bool ResendMarked(QWindow& window, QKeyEvent& event, bool repeat);

  /// Null where the events are marked already.
  std::unique_ptr<RepeatSource> source_;
  /// The window in which each held key was pressed, by ScanCodeOf.
  std::unordered_map<std::uint32_t, QPointer<QWindow>> down_;
  /// The copy that is being delivered.
  const QEvent* copy_ = nullptr;
};

}  // namespace terramark::window
