// A picture box to assistive tools: a list of the markers on it, each with its name, place and
// state. What becomes of them is told when an event has run to its end.
#pragma once

#include <QAccessibleWidget>
#include <unordered_map>
#include <vector>

#include "forms/controls.h"

namespace terramark::window {

class CanvasView;

/// A list, since readers know how to walk one, say that an item is "3 of 50" and whether it is
/// selected. A box without labels is a graphic.
class CanvasAccessible final : public QAccessibleWidget {
 public:
  explicit CanvasAccessible(CanvasView& canvas);
  ~CanvasAccessible() override;

  /// Tells of the labels that came, went, moved or changed name or state since the last call, and
  /// of the one that the keyboard is at.
  void NotifyChanges();
  /// A label is about to go; only its identity is used.
  void Forget(const forms::Control& label);
  /// The widget itself has just been told to have the keyboard.
  void Refocused() { focused_ = nullptr; }

  QString MarkerName(const forms::Label& label) const;
  /// Its corner in pixels of the picture, also while the keyboard carries it. Of a move readers
  /// hear by this alone: Qt 6.4 does not pass on that a place has changed.
  QString PositionTextOf(const forms::Label& label) const;
  /// On the screen.
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
    QString PositionText;
    QRect Place;
    bool Selected = false;
  };

  /// The labels that can be seen on the picture, array by array and by number.
  std::vector<const forms::Label*> Markers() const;
  QAccessibleInterface* MarkerOf(const forms::Label& label) const;
  void NotifyLabel(const forms::Label& label);
  void NotifyRemoved(const forms::Control& label);
  /// The label that has the keyboard; null for none.
  const forms::Label* Focused() const;

  CanvasView& canvas_;
  /// What has been made for a label; Qt keeps it until it is told otherwise.
  mutable std::unordered_map<const forms::Control*, QAccessible::Id> ids_;
  std::unordered_map<const forms::Control*, NotifiedState> notified_;
  const forms::Label* focused_ = nullptr;
};

}  // namespace terramark::window
