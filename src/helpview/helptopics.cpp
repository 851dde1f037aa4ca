#include "helpview/helptopics.h"

#include <QDir>
#include <QFile>
#include <algorithm>

namespace terramark::helpview {

namespace {

constexpr int ContentsTopic = 2;

/// The title is in the first line, the heading.
QString TitleOf(const QString& text) {
  return text.section('\n', 0, 0).remove(0, QStringLiteral("# ").size()).trimmed();
}

}  // namespace

std::vector<HelpTopic> ReadHelpTopics() {
  std::vector<HelpTopic> topics;
  const QDir folder(":/help");
  for (const QString& name : folder.entryList({"*.md"}, QDir::Files)) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::ReadOnly)) continue;
    const QString text = QString::fromUtf8(file.readAll());
    topics.push_back(
        {name.section('-', 0, 0).toInt(), TitleOf(text), text, QUrl("qrc:/help/" + name)});
  }
  std::ranges::sort(topics, {}, &HelpTopic::Number);
  return topics;
}

std::size_t TopicIndex(const std::vector<HelpTopic>& topics, int number) {
  for (const int wanted : {number, ContentsTopic}) {
    const auto topic = std::ranges::find(topics, wanted, &HelpTopic::Number);
    if (topic != topics.end()) return static_cast<std::size_t>(topic - topics.begin());
  }
  return 0;
}

}  // namespace terramark::helpview
