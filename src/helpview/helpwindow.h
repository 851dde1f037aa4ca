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
  enum class Direction { Forward, Backward };

  void LayOut();
  void ConnectParts();
  void SetKeys();
  void PlaceBeside(const QWidget& editor);

  void Show(std::size_t topic);
  void PageChanged(const QUrl& source);
  /// Whether the search box has words.
  bool HasQuery() const { return !search_.text().trimmed().isEmpty(); }
  /// They have changed.
  void Search();
  /// To the next place found, or the one before.
  void FindNext(Direction direction);
  /// Marks on the page what was found, and tells how much there is.
  void ShowMatches();
  /// Null when a topic has nothing of it.
  const HelpMatch* FirstMatchIn(int row) const;
  void ShowStatus(const QString& news);

  const std::vector<HelpTopic> topics_ = ReadHelpTopics();
  /// The topics as they are read; empty until the first search.
  QStringList texts_;
  std::vector<HelpMatch> matches_;

  QPushButton back_{"&Back"};
  QPushButton forward_{"&Forward"};
  QLineEdit search_;
  QLabel status_;
  HelpContents contents_;
  HelpPage page_;
};

}  // namespace terramark::helpview
