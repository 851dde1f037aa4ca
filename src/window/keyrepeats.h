// Tells a held key's repeats from presses, for all windows of the application.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <cstdint>
#include <memory>
#include <unordered_map>

namespace terramark::window {

/// A platform that shows a repeat as a release and a press at the same time marks the two only when
/// it has read both; on a busy machine it leaves many unmarked. Here they get their mark before a
/// window sees them, so that each press has one release. The repeats and the release of a key reach
/// only the window in which it went down: a box that comes up under a held key knows nothing of it.
/// Enter and Escape do not repeat at all.
class KeyRepeats : public QObject {
 public:
  /// Watches the application as long as this lives.
  KeyRepeats();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Key {
    QPointer<QWindow> Window;       // in which it went down; null when that was in none of ours
    bool Down = false;              // its release is still to be told
    std::uint64_t PressedAt = 0;    // when it went down, in ms
    std::uint64_t LastRelease = 0;  // time of the last one seen, half of a repeat or not, in ms
  };

  bool Pressed(QWindow& window, QKeyEvent& event);
  bool Released(QWindow& window, const QKeyEvent& event);
  /// Whether a key comes too soon after its press for a repeat, whatever its mark says.
  bool Struck(const QKeyEvent& event) const;
  /// False when a box came up and went again meanwhile: what is in hand was for a window behind it.
  bool TellRelease();
  void Send(QWindow& window, QKeyEvent& event);

  /// By CodeOf.
  std::unordered_map<std::uint32_t, Key> keys_;
  /// A release that may yet turn out to be half of a repeat.
  std::unique_ptr<QKeyEvent> waiting_;
  QTimer patience_;
  /// X11 marks two quick strokes like a repeat. Elsewhere a repeat may bear the time of its press.
  const bool marksStrokes_;
  /// How often boxes have come up over windows.
  unsigned blocks_ = 0;
  /// The event that is being sent from here.
  const QEvent* sent_ = nullptr;
};

}  // namespace terramark::window
