// The topics of the help, one Markdown file each, built into the program.
#pragma once

#include <QString>
#include <QUrl>
#include <vector>

namespace terramark::helpview {

struct HelpTopic {
  int Number;
  QString Title;
  QString Text;  // Markdown
  QUrl Source;
};

/// All topics, by their numbers.
std::vector<HelpTopic> ReadHelpTopics();

/// The index of a topic's number, or that of the contents for any other number.
std::size_t TopicIndex(const std::vector<HelpTopic>& topics, int number);

}  // namespace terramark::helpview
