// Brings the keys and the focus of a form's widgets to the form.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QTimer>
#include <cstdint>
#include <optional>
#include <unordered_map>

#include "forms/form.h"

namespace terramark::qt {

/// The key mask Shift of the forms layer.
std::int16_t KeyMask(Qt::KeyboardModifiers modifiers);

class KeyFeed : public QObject {
 public:
  explicit KeyFeed(forms::Form& form);

  /// The widget takes the focus for the control.
  void Watch(QWidget& widget, forms::Control& control);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Pressed(QObject& watched, const QKeyEvent& key);
  void Released(const QKeyEvent& key);
  void TellRelease();

  /// A release that may yet turn out to be half of an auto-repeat.
  struct Release {
    int Key;
    std::uint64_t Time;  // milliseconds
    forms::KeyEvent Event;
  };

  forms::Form& form_;
  std::optional<Release> waiting_;
  QTimer patience_;
  std::unordered_map<const QObject*, forms::Control*> controls_;
};

}  // namespace terramark::qt
