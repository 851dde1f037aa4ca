#include "window/helpwindow.h"

#include <QKeyEvent>

#include "window/helptopics.h"

namespace terramark::window {

namespace {

constexpr QSize FirstSize(420, 300);

QString PageOf(std::int32_t number) {
  const HelpTopic* topic = FindHelpTopic(number);
  if (topic == nullptr) {
    return QString("<h2>Topic %1</h2><p>There is no such help topic.</p>").arg(number);
  }
  return QString("<h2>Topic %1: %2</h2><p>Opened by %3.</p>")
      .arg(number)
      .arg(QString(topic->Subject).toHtmlEscaped(), QString(topic->OpenedBy).toHtmlEscaped());
}

}  // namespace

HelpWindow::HelpWindow() : page_(this), layout_(this) {
  setWindowTitle("Terramark Help");
  setObjectName("Help");
  page_.setObjectName("HelpPage");
  layout_.setContentsMargins(0, 0, 0, 0);
  layout_.addWidget(&page_);
  resize(FirstSize);
}

void HelpWindow::Open(std::int32_t topic) {
  page_.setHtml(PageOf(topic));
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
