// The help viewer: one window beside the editor, with the contents, a search and one topic.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
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
  /// Each opening places the window beside the editor's where the screen has room; null leaves the
  /// place to the window manager.
  explicit HelpWindow(const QWidget* editor);

  /// Shows a topic and raises the window; for a number that is no topic, the contents.
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
  /// Finds the words in the search box anew.
  void Search();
  /// Goes to the next or the previous match.
  void FindNext(Direction direction);
  /// Highlights the matches on the page, and shows their number.
  void ShowMatches();
  /// Null for a topic without a match.
  const HelpMatch* FirstMatchIn(int row) const;
  void ShowStatus(const QString& news);

  const std::vector<HelpTopic> topics_ = ReadHelpTopics();
  /// The topics' plain texts; empty until the first search.
  QStringList texts_;
  std::vector<HelpMatch> matches_;

  const QPointer<const QWidget> editor_;
  /// The size that was wanted, and the one for which there was room, at the last placing.
  QSize wanted_;
  QSize placed_;
  QPushButton back_{"&Back"};
  QPushButton forward_{"&Forward"};
  QLineEdit search_;
  QLabel status_;
  HelpContents contents_;
  HelpPage page_;
};

}  // namespace terramark::helpview
