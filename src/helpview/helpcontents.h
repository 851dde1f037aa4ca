// The list of the help's topics.
#pragma once

#include <QListWidget>

namespace terramark::helpview {

/// The current topic is grey; with the keyboard focus it has the colour of a selection.
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
