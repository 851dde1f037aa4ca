#include "helpview/helpcontents.h"

#include <QApplication>

namespace terramark::helpview {

HelpContents::HelpContents() {
  SetSelectionColours(QPalette::Button, QPalette::ButtonText);
}

void HelpContents::focusInEvent(QFocusEvent* event) {
  QListWidget::focusInEvent(event);
  SetSelectionColours(QPalette::Highlight, QPalette::HighlightedText);
}

void HelpContents::focusOutEvent(QFocusEvent* event) {
  QListWidget::focusOutEvent(event);
  SetSelectionColours(QPalette::Button, QPalette::ButtonText);
}

void HelpContents::SetSelectionColours(QPalette::ColorRole face, QPalette::ColorRole text) {
  const QPalette usual = QApplication::palette();
  QPalette colours = palette();
  colours.setColor(QPalette::Highlight, usual.color(face));
  colours.setColor(QPalette::HighlightedText, usual.color(text));
  setPalette(colours);
}

}  // namespace terramark::helpview
