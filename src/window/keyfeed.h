// Passes the keys and the focus of a form's widgets to the form.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QWidget>
#include <cstdint>
#include <unordered_map>

#include "forms/form.h"

namespace terramark::window {

/// The forms layer's mask of Shift, Ctrl and Alt.
std::int16_t KeyMask(Qt::KeyboardModifiers modifiers);

class KeyFeed : public QObject {
 public:
  explicit KeyFeed(forms::Form& form) : form_(form) {}

  /// The widget takes the focus for the control, or with null for the form itself. The form
  /// receives the keys of the focus widget before that widget does.
  void Watch(QWidget& widget, forms::Control* control);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Accepts(const QObject& watched, const QKeyEvent& key);
  bool Pressed(const QKeyEvent& key);
  void Released(const QKeyEvent& key);

  /// Identifies an event: Qt may reuse the address.
  struct Stamp {
    const QKeyEvent* Event = nullptr;
    QEvent::Type Type = QEvent::None;
    std::uint64_t Time = 0;
    bool operator==(const Stamp&) const = default;
  };

  forms::Form& form_;
  std::unordered_map<const QObject*, forms::Control*> controls_;
  Stamp lastKey_;
};

}  // namespace terramark::window
