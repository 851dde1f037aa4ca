// A part of a widget that is not a widget itself, as assistive tools see it.
#pragma once

#include <QAccessible>
#include <QAccessibleWidget>
#include <memory>

namespace terramark::window {

/// An item without children. Derived classes give its place, name, role and state.
class AccessibleItem : public QAccessibleInterface {
 public:
  /// The interface of the widget must outlive its items.
  explicit AccessibleItem(QAccessibleWidget& widget) : widget_(widget) {}

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return widget_.window(); }
  QAccessibleInterface* parent() const override { return &widget_; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  void setText(QAccessible::Text, const QString&) override {}

 private:
  QAccessibleWidget& widget_;
};

/// Passes an interface to Qt, which keeps it until deleteAccessibleInterface.
template <typename Made>
QAccessible::Id Register(std::unique_ptr<Made> made) {
  return QAccessible::registerAccessibleInterface(made.release());
}

inline void Send(QAccessibleInterface& about, QAccessible::Event type) {
  QAccessibleEvent event(&about, type);
  QAccessible::updateAccessibility(&event);
}

}  // namespace terramark::window
