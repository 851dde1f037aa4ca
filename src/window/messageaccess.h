// Labels that are heard otherwise than by the change of their names: one that announces what it
// says, and one that says it when asked.
#pragma once

#include <QAccessibleWidget>
#include <array>

#include "window/labelview.h"

namespace terramark::window {

/// What a label is called where it is heard: its own name, and then the caption.
QString SpokenText(const forms::Label& label);

/// A label with two children, an alert and a status bar, of which one shows while there is a text:
/// coming to show is what readers announce.
class MessageAccess final : public QAccessibleWidget {
 public:
  explicit MessageAccess(LabelView& view);
  ~MessageAccess() override;

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
class SilentAccess final : public QAccessibleWidget {
 public:
  explicit SilentAccess(LabelView& view);
  QString text(QAccessible::Text kind) const override;

 private:
  LabelView& view_;
};

}  // namespace terramark::window
