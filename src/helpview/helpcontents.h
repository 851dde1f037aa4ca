// The list of the help's topics.
#pragma once

#include <QListWidget>

namespace terramark::helpview {

/// Marks the current topic in grey, and in the colour of a selection while it has the keyboard.
class HelpContents final : public QListWidget {
 public:
  HelpContents();

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void SetSelectionColours(QPalette::ColorRole face, QPalette::ColorRole text);
};

}  // namespace terramark::helpview
