// Says something to assistive tools once, whatever they are at. Orca reads a thing that becomes
// visible only if it is a notification, and reads no changed description, since Qt 6.4 does not
// pass the new text on.
#pragma once

#include <QString>

#include "window/accessibleitem.h"

namespace terramark::window {

/// A child of a widget's interface, visible while it has a text. Destroyed before its parent.
class NoticeAccessible final : public AccessibleItem {
 public:
  explicit NoticeAccessible(QAccessibleWidget& widget);

  /// Says a text, even if it is the same as before; the empty text says nothing.
  void Say(const QString& text);

  QString text(QAccessible::Text kind) const override;
  QRect rect() const override { return widget_.rect(); }
  QAccessible::Role role() const override { return QAccessible::Notification; }
  QAccessible::State state() const override;

 private:
  QAccessibleWidget& widget_;
  QString text_;
};

}  // namespace terramark::window
