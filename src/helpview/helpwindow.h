// The help viewer: one window beside the editor, with the contents, a search and one topic.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>
#include <cstdint>
#include <vector>

#include "helpview/helpcontents.h"
#include "helpview/helppage.h"
#include "helpview/helpsearch.h"
#include "helpview/helptopics.h"

namespace terramark::helpview {

class HelpWindow : public QWidget {
 public:
  /// Stands beside the editor's window where the screen has room; null is none.
  explicit HelpWindow(const QWidget* editor);

  /// Shows a topic and comes to the front; for a number that is no topic, the contents.
  void Open(std::int32_t topic);

 private:
  void LayOut();
  void JoinParts();
  void SetKeys();
  void StandBeside(const QWidget& editor);

  void Show(std::size_t topic);
  void PageChanged(const QUrl& source);
  /// Whether the search box has words.
  bool Asked() const { return !search_.text().trimmed().isEmpty(); }
  /// They have changed.
  void Search();
  /// To the next place found, or the one before.
  void GoOn(bool forward);
  /// Marks on the page what was found, and tells how much there is.
  void ShowFound();
  /// Null when a topic has nothing of it.
  const HelpPlace* FirstFoundIn(int row) const;
  void Tell(const QString& news);

  const std::vector<HelpTopic> topics_ = ReadHelpTopics();
  /// The topics as they are read; empty until the first search.
  QStringList texts_;
  std::vector<HelpPlace> found_;

  QPushButton back_{"&Back"};
  QPushButton forward_{"&Forward"};
  QLineEdit search_;
  QLabel told_;
  HelpContents contents_;
  HelpPage page_;
};

}  // namespace terramark::helpview
