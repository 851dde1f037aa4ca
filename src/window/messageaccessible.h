// Labels that do not report a new caption as a change of their name: one announces each text, one
// is read only on request.
#pragma once

#include <QAccessibleWidget>
#include <array>

#include "window/labelview.h"

namespace terramark::window {

/// A label with three children, an alert, a status bar and a notification. While there is a text,
/// the notification and one of the others are visible: readers announce what becomes visible, some
/// only a notification.
class MessageAccessible final : public QAccessibleWidget {
 public:
  explicit MessageAccessible(LabelView& view);
  ~MessageAccessible() override;

  /// Announces the label's text, even if it is the same as before.
  void Announce();

  /// The role of the visible child; NoRole while the label is blank.
  QAccessible::Role Showing() const;
  QString Caption() const;

  int childCount() const override { return static_cast<int>(children_.size()); }
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;

 private:
  QAccessibleInterface* ChildOf(QAccessible::Role role) const;

  LabelView& view_;
  /// The notification is the last.
  std::array<QAccessible::Id, 3> children_{};
  QAccessible::Role shown_ = QAccessible::NoRole;
};

/// A label that does not report a new caption.
class OnRequestAccessible final : public QAccessibleWidget {
 public:
  explicit OnRequestAccessible(LabelView& view);
  QString text(QAccessible::Text kind) const override;

 private:
  LabelView& view_;
};

}  // namespace terramark::window
