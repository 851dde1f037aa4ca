#include "helpview/helppage.h"

#include <QFile>
#include <QKeyEvent>
#include <QResizeEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "helpview/pagestyle.h"
#include "widgets/scrollbarnames.h"

namespace terramark::helpview {

namespace {

constexpr double DefaultPoints = 10.5;
constexpr double ZoomStep = 1.15;
constexpr int MinZoom = -4;
constexpr int MaxZoom = 10;
constexpr double Margin = 18;
/// How many pixels of the page should be visible above and below a match.
constexpr int MatchMargin = 40;

const QColor MatchBackground(0xFF, 0xE0, 0x70);
const QColor LinkColour(0x00, 0x00, 0xC0);

}  // namespace

HelpPage::HelpPage() {
  setObjectName("HelpPage");
  setAccessibleName("Help page");
  widgets::NameScrollBars(*this, "Help page");
  // With a text cursor the keyboard can select, and a screen reader can read.
  setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  QPalette colours = palette();
  colours.setColor(QPalette::Link, LinkColour);
  setPalette(colours);
  Zoom(0);
  connect(this, &QTextBrowser::sourceChanged, this, [this] { ApplyStyle(); });
}

void HelpPage::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
  const QUrl target = source().resolved(name);
  if (target.scheme() != "qrc" || !target.path().endsWith(".md")) return;
  if (!QFile::exists(':' + target.path())) return;
  // Loading the same page again would style it twice.
  if (target == source()) return;
  QTextBrowser::doSetSource(target, type);
}

void HelpPage::ApplyStyle() {
  document()->setDocumentMargin(Margin);
  StylePage(*document());
  Fit();
  setTextCursor(QTextCursor(document()));
  // So that a reader can read the whole page without following the text cursor.
  setAccessibleDescription(toPlainText());
}

void HelpPage::Fit() {
  const double width = viewport()->width() - 2 * document()->documentMargin();
  FitPictures(*document(), std::max(1, static_cast<int>(width)), devicePixelRatioF());
}

void HelpPage::HighlightMatches(const std::vector<HelpMatch>& places) {
  QList<ExtraSelection> marks;
  for (const HelpMatch& place : places) {
    ExtraSelection mark;
    mark.cursor = QTextCursor(document());
    mark.cursor.setPosition(place.At);
    mark.cursor.setPosition(place.At + place.Size, QTextCursor::KeepAnchor);
    mark.format.setBackground(MatchBackground);
    marks += mark;
  }
  setExtraSelections(marks);
}

void HelpPage::SelectMatch(const HelpMatch& place) {
  QTextCursor cursor(document());
  cursor.setPosition(place.At);
  cursor.setPosition(place.At + place.Size, QTextCursor::KeepAnchor);
  const bool inSight =
      viewport()->rect().adjusted(0, MatchMargin, 0, -MatchMargin).contains(cursorRect(cursor));
  setTextCursor(cursor);
  if (inSight) return;
  const int tooLow = cursorRect().top() - viewport()->height() / 3;
  verticalScrollBar()->setValue(verticalScrollBar()->value() + tooLow);
}

void HelpPage::Zoom(int zoom) {
  zoom_ = std::clamp(zoom, MinZoom, MaxZoom);
  const QTextCursor top = cursorForPosition({});
  const int before = cursorRect(top).top();
  QFont letters = font();
  letters.setPointSizeF(DefaultPoints * std::pow(ZoomStep, zoom_));
  setFont(letters);
  // The text at the top stays at the top.
  verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(top).top() - before);
}

void HelpPage::resizeEvent(QResizeEvent* event) {
  QTextBrowser::resizeEvent(event);
  if (event->oldSize().width() != event->size().width()) Fit();
}

void HelpPage::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return QTextBrowser::wheelEvent(event);
  turned_ += event->angleDelta().y();
  Zoom(zoom_ + turned_ / QWheelEvent::DefaultDeltasPerStep);
  turned_ %= QWheelEvent::DefaultDeltasPerStep;
  event->accept();
}

bool HelpPage::focusNextPrevChild(bool next) {
  // Shift+Tab leaves the page, unless a link is selected. Qt would go to the page's last link.
  if (!next && !textCursor().hasSelection()) return QWidget::focusNextPrevChild(next);
  return QTextBrowser::focusNextPrevChild(next);
}

void HelpPage::keyPressEvent(QKeyEvent* event) {
  // A focused link is a selection with a dotted line around it, and a selection that is extended
  // from it would keep the line.
  const bool moves = event->key() >= Qt::Key_Home && event->key() <= Qt::Key_PageDown;
  if (moves && event->modifiers().testFlag(Qt::ShiftModifier)) setTextCursor(textCursor());
  QTextBrowser::keyPressEvent(event);
}

}  // namespace terramark::helpview
