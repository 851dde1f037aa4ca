// Labels that tell a screen reader otherwise than by the change of their names: one that announces
// what it says, and one that says it when asked.
#pragma once

#include <QAccessibleWidget>
#include <array>

#include "window/labelview.h"

namespace terramark::window {

/// A label with two children, an alert and a status bar, of which one shows while there is a text:
/// coming to show is what readers announce.
class MessageAccessible final : public QAccessibleWidget {
 public:
  explicit MessageAccessible(LabelView& view);
  ~MessageAccessible() override;

  /// Announces what the label says now, also where it has said so before.
  void Announce();

  /// The role of the child that shows; NoRole while the label is blank.
  QAccessible::Role Showing() const;
  QString Caption() const;

  int childCount() const override { return static_cast<int>(children_.size()); }
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;

 private:
  QAccessibleInterface* ChildOf(QAccessible::Role role) const;

  LabelView& view_;
  std::array<QAccessible::Id, 2> children_{};
  QAccessible::Role shown_ = QAccessible::NoRole;
};

/// A label that tells nobody of a new caption.
class OnRequestAccessible final : public QAccessibleWidget {
 public:
  explicit OnRequestAccessible(LabelView& view);
  QString text(QAccessible::Text kind) const override;

 private:
  LabelView& view_;
};

}  // namespace terramark::window
