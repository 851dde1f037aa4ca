// Finds words in the topics of the help.
#pragma once

#include <QString>
#include <QStringList>
#include <compare>
#include <cstddef>
#include <vector>

namespace terramark::helpview {

/// Some characters of a topic's text.
struct HelpMatch {
  std::size_t Topic;
  int At;
  int Size;

  auto operator<=>(const HelpMatch&) const = default;
};

/// The places of the query as a whole; if there are none, those of its words, in the texts that
/// have all of them. In order, and without overlap. Case does not matter, and a match may be the
/// beginning of a longer word. None for a query without words.
std::vector<HelpMatch> FindWords(const QStringList& texts, const QString& query);

/// The first match that begins at this place or later, or else the very first match. There must be
/// one.
std::size_t NextMatch(const std::vector<HelpMatch>& places, std::size_t topic, int at);

}  // namespace terramark::helpview
