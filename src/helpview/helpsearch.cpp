#include "helpview/helpsearch.h"

#include <algorithm>

namespace terramark::helpview {

namespace {

bool BeginsWord(const QString& text, qsizetype at) {
  return at == 0 || !text[at - 1].isLetterOrNumber() || !text[at].isLetterOrNumber();
}

/// The matches of all words; none unless each word occurs.
std::vector<HelpMatch> MatchesIn(const QString& text, std::size_t topic, const QStringList& words) {
  std::vector<HelpMatch> places;
  for (const QString& word : words) {
    const std::size_t before = places.size();
    for (auto at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(word, at + 1, Qt::CaseInsensitive)) {
      if (!BeginsWord(text, at)) continue;
      places.push_back({topic, static_cast<int>(at), static_cast<int>(word.size())});
    }
    if (places.size() == before) return {};
  }
  std::ranges::sort(places);
  return places;
}

std::vector<HelpMatch> FindAll(const QStringList& texts, const QStringList& words) {
  std::vector<HelpMatch> found;
  for (std::size_t topic = 0; topic < static_cast<std::size_t>(texts.size()); ++topic) {
    int end = 0;
    for (const HelpMatch& place : MatchesIn(texts[static_cast<qsizetype>(topic)], topic, words)) {
      if (place.At < end) continue;
      found.push_back(place);
      end = place.At + place.Size;
    }
  }
  return found;
}

}  // namespace

std::vector<HelpMatch> FindWords(const QStringList& texts, const QString& query) {
  const QString whole = query.simplified();
  if (whole.isEmpty()) return {};
  std::vector<HelpMatch> found = FindAll(texts, {whole});
  if (!found.empty()) return found;
  QStringList words = whole.split(' ');
  // A pasted page has many words more than once.
  words.removeDuplicates();
  return FindAll(texts, words);
}

std::size_t NextMatch(const std::vector<HelpMatch>& places, std::size_t topic, int at) {
  const auto next = std::ranges::lower_bound(places, HelpMatch{topic, at, 0});
  return next == places.end() ? 0 : static_cast<std::size_t>(next - places.begin());
}

}  // namespace terramark::helpview
