// The help viewer: one window beside the editor, which shows one topic at a time.
#pragma once

#include <QTextBrowser>
#include <QVBoxLayout>
#include <QWidget>
#include <cstdint>

namespace terramark::window {

class HelpWindow : public QWidget {
 public:
  HelpWindow();

  /// Shows a topic and comes to the front. A number that is no topic is told so.
  void Open(std::int32_t topic);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QTextBrowser page_;
  QVBoxLayout layout_;
};

}  // namespace terramark::window
