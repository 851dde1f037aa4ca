// The topics of the help, as they were built into the program: one Markdown file each.
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

/// In the order of their numbers.
std::vector<HelpTopic> ReadHelpTopics();

/// The place of a number among the topics, or else that of the contents.
std::size_t TopicIndex(const std::vector<HelpTopic>& topics, int number);

}  // namespace terramark::helpview
