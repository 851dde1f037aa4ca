#include "window/helpwindow.h"

#include <QKeyEvent>

#include "shell/form1controls.h"
#include "window/accessiblenames.h"
#include "window/helptopics.h"

namespace terramark::window {

namespace {

constexpr QSize FirstSize(420, 300);

/// The words by which a user knows the controls that open a topic.
QString OpenersOf(std::int32_t topic) {
  QString list;
  for (const ControlRow<Form1>& row : Form1Controls()) {
    if (row.HelpTopic != topic) continue;
    const QString words(*row.Caption != '\0' ? row.Caption : row.ToolTipText);
    list += "<li>" + words.toHtmlEscaped() + "</li>";
  }
  return list;
}

QString PageOf(std::int32_t number) {
  const HelpTopic* topic = FindHelpTopic(number);
  if (topic == nullptr) {
    return QString("<h2>Topic %1</h2><p>There is no such help topic.</p>").arg(number);
  }
  return QString(
             "<h2>Topic %1: %2</h2><p>Opened with the Shift key, or F1 where it has the keyboard, "
             "from</p><ul>%3</ul>")
      .arg(number)
      .arg(QString(topic->Subject).toHtmlEscaped(), OpenersOf(number));
}

}  // namespace

HelpWindow::HelpWindow() : page_(this), layout_(this) {
  setWindowTitle("Terramark Help");
  setObjectName("Help");
  page_.setObjectName("HelpPage");
  page_.setAccessibleName("Help page");
  NameScrollBars(page_, "Help page");
  layout_.setContentsMargins(0, 0, 0, 0);
  layout_.addWidget(&page_);
  resize(FirstSize);
}

void HelpWindow::Open(std::int32_t topic) {
  page_.setHtml(PageOf(topic));
  // The page has no caret by which a reader would come to its words.
  page_.setAccessibleDescription(page_.toPlainText());
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) close();
  QWidget::keyPressEvent(event);
}

}  // namespace terramark::window
