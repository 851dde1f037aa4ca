#include "document/links.h"

#include <algorithm>

#include "document/numbers.h"

namespace terramark {

namespace {

/// Characters of a count and of an entry.
constexpr std::size_t PairSize = 2;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// The number in the two characters at a position from 0, by ReadNumber; 0 outside 0 to 99.
std::int16_t FieldAt(std::string_view links, std::size_t position) {
  if (position >= links.size()) return 0;
  const std::string_view field = links.substr(position, PairSize);
  // Nearly every field has two digits; only others need ReadNumber.
  if (field.size() == PairSize && IsDigit(field[0]) && IsDigit(field[1])) {
    return static_cast<std::int16_t>((field[0] - '0') * 10 + (field[1] - '0'));
  }
  const std::int16_t number = WholeNumber(ReadNumber(field)).value_or(0);
  return number < 0 || number > LastNumber ? std::int16_t{0} : number;
}

}  // namespace

Neighbours::Neighbours(std::string_view links)
    : count_(static_cast<std::size_t>(LinkCount(links))) {
  for (std::size_t k = 0; k < count_; ++k) entries_[k] = FieldAt(links, PairSize * (1 + k));
}

bool Neighbours::Contains(std::int16_t area) const {
  return std::find(begin(), end(), area) != end();
}

std::string MakeLinks(const std::vector<std::int16_t>& areas) {
  std::string links = TwoDigit(static_cast<std::int16_t>(areas.size()));
  for (const std::int16_t area : areas) links += TwoDigit(area);
  return links;
}

std::string WithEntry(std::string links, std::int16_t area) {
  const std::int16_t count = LinkCount(links);
  if (count == 0) return MakeLinks({area});
  if (Neighbours(links).Contains(area)) return links;
  links.replace(0, PairSize, TwoDigit(static_cast<std::int16_t>(count + 1)));
  return links + TwoDigit(area);
}

std::string WithoutEntry(const std::string& links, std::int16_t area) {
  const Neighbours entries(links);
  std::string kept;
  bool found = false;
  std::size_t at = PairSize;
  for (const std::int16_t entry : entries) {
    const std::string pair = at < links.size() ? links.substr(at, PairSize) : std::string();
    if (pair == TwoDigit(area)) found = true;
    if (entry != area) kept += pair;
    at += PairSize;
  }
  if (!found) return links;
  if (entries.Count() == 1) return EmptyLinks;
  return TwoDigit(static_cast<std::int16_t>(entries.Count() - 1)) + kept;
}

std::int16_t LinkCount(std::string_view links) {
  return FieldAt(links, 0);
}

std::int16_t IsNeighbour(const Tables& tables, std::int16_t a, std::int16_t b) {
  return Neighbours(tables.AreaLinks(a)).Contains(b) ? 1 : 0;
}

}  // namespace terramark
