// A picture box for assistive tools: a list of the markers on it, each with its name, place and
// state. Changes are reported when an event has been handled to its end.
#pragma once

#include <QAccessibleWidget>
#include <unordered_map>
#include <vector>

#include "forms/controls.h"
#include "shell/markers.h"
#include "window/noticeaccessible.h"

namespace terramark::window {

class CanvasView;

/// A list, since screen readers can walk one, and say "3 of 50" and whether an item is selected. A
/// box without labels has the role of a graphic.
class CanvasAccessible final : public QAccessibleWidget {
 public:
  explicit CanvasAccessible(CanvasView& canvas);
  ~CanvasAccessible() override;

  /// Reports the labels that were added, removed or moved, or that changed name or state since the
  /// last call, and the label that has the keyboard focus.
  void NotifyChanges();
  /// A label is about to be destroyed; only its address is used.
  void Forget(const forms::Control& label);
  /// Qt has just reported that the widget itself has the focus.
  void Refocused() { focused_ = nullptr; }

  QString MarkerName(const forms::Label& label) const;
  /// The corner of a label in pixels of the picture, also during a key drag, then its own
  /// description, and whether it is current or marked. Qt 6.4 does not pass on LocationChanged, so
  /// a move is told by this text.
  QString DescriptionOf(const forms::Label& label) const;
  /// In pixels of the screen.
  QRect ScreenRectOf(const forms::Label& label) const;
  QAccessible::State StateOf(const forms::Label& label) const;

  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;
  QAccessible::State state() const override;

 private:
  struct NotifiedState {
    QString Name;
    QString PlaceText;
    QString Note;
    MarkerState State = MarkerState::Plain;
    QRect Place;
  };

  /// The visible labels on the picture, in the order of the list.
  std::vector<const forms::Label*> Markers() const;
  QAccessibleInterface* MarkerOf(const forms::Label& label) const;
  NotifiedState StateNow(const forms::Label& label) const;
  void NotifyLabel(const forms::Label& label);
  void NotifyRemoved(const forms::Control& label);
  /// The label that the keys on the map act on; null for none.
  const forms::Label* Focused() const;

  CanvasView& canvas_;
  /// The interface made for each label; Qt keeps it until deleteAccessibleInterface.
  mutable std::unordered_map<const forms::Control*, QAccessible::Id> ids_;
  std::unordered_map<const forms::Control*, NotifiedState> notified_;
  const forms::Label* focused_ = nullptr;
  /// The last child: says what changed of the label that has the focus. Registered with Qt, which
  /// deletes it at deleteAccessibleInterface.
  NoticeAccessible& notice_;
  QAccessible::Id noticeId_;
};

}  // namespace terramark::window
