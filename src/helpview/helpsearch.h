// Finds words in the topics of the help.
#pragma once

#include <QString>
#include <QStringList>
#include <compare>
#include <cstddef>
#include <vector>

namespace terramark::helpview {

/// Characters of a topic's text.
struct HelpMatch {
  std::size_t Topic;
  int At;
  int Size;

  auto operator<=>(const HelpMatch&) const = default;
};

/// Where a query stands in the texts as it is; or else its words, in those texts that have all of
/// them. In order; one place does not reach into the next. Case does not matter, and a word may go
/// on. None for a query without words.
std::vector<HelpMatch> FindWords(const QStringList& texts, const QString& query);

/// The first place that begins there or later, or else the very first: the search goes round.
/// There must be one.
std::size_t NextMatch(const std::vector<HelpMatch>& places, std::size_t topic, int at);

}  // namespace terramark::helpview
