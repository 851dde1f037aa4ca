// A property of a control. It reads as its value, and notifies its owner when an assignment changes
// it.
#pragma once

#include <utility>

namespace terramark::forms {

enum class PropertyId {
  Caption,
  Text,
  Selection,  // reported by TextBox::SelectAll; no control stores it
  Value,
  Picture,
  Left,
  Top,
  Width,
  Height,
  ScrollLeft,
  ScrollTop,
  Zoom,
  CursorItem,
  Visible,
  Enabled,
  BackColor,
  ForeColor,
  Tag,
  BorderStyle,
  AnchorCorner,
};

/// The owner of properties. PropertyChanged runs before the assignment returns.
class PropertyOwner {
 public:
  virtual void PropertyChanged(PropertyId id) = 0;

 protected:
  ~PropertyOwner() = default;
};

/// Which assignments notify the owner.
enum class NotifyOn { Changes, EveryAssignment };

template <typename T, NotifyOn When = NotifyOn::Changes>
class Property {
 public:
  Property(PropertyOwner& owner, PropertyId id, T value = {})
      : owner_(owner), id_(id), value_(std::move(value)) {}
  Property(const Property&) = delete;
  ~Property() = default;

  /// Assigning the value that the property already has notifies nobody, unless every assignment
  /// does.
  Property& operator=(T value) {
    if (When == NotifyOn::Changes && value == value_) return *this;
    value_ = std::move(value);
    owner_.PropertyChanged(id_);
    return *this;
  }
  Property& operator=(const Property& other) { return *this = T(other.value_); }

  /// Sets a value without a notification, for an owner that could not carry out an assignment.
  void Restore(T value) { value_ = std::move(value); }

  operator const T&() const { return value_; }
  const T& Get() const { return value_; }

 private:
  PropertyOwner& owner_;
  const PropertyId id_;
  T value_;
};

}  // namespace terramark::forms
