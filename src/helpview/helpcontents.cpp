#include "helpview/helpcontents.h"

#include <QApplication>

namespace terramark::helpview {

HelpContents::HelpContents() {
  ShowFocus(false);
}

void HelpContents::focusInEvent(QFocusEvent* event) {
  QListWidget::focusInEvent(event);
  ShowFocus(true);
}

void HelpContents::focusOutEvent(QFocusEvent* event) {
  QListWidget::focusOutEvent(event);
  ShowFocus(false);
}

void HelpContents::ShowFocus(bool has) {
  const QPalette usual = QApplication::palette();
  QPalette colours = palette();
  colours.setColor(QPalette::Highlight, usual.color(has ? QPalette::Highlight : QPalette::Button));
  colours.setColor(QPalette::HighlightedText,
                   usual.color(has ? QPalette::HighlightedText : QPalette::ButtonText));
  setPalette(colours);
}

}  // namespace terramark::helpview
