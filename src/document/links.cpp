#include "document/links.h"

#include <algorithm>

#include "document/numbers.h"

namespace terramark {

namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// The number in the two characters at a position from 0, by ReadNumber; 0 outside 0 to 99.
std::int16_t FieldAt(std::string_view links, std::size_t position) {
  if (position >= links.size()) return 0;
  const std::string_view field = links.substr(position, 2);
  // Nearly every field is two digits; the rest takes the long road.
  if (field.size() == 2 && IsDigit(field[0]) && IsDigit(field[1])) {
    return static_cast<std::int16_t>((field[0] - '0') * 10 + (field[1] - '0'));
  }
  const std::int16_t number = WholeNumber(ReadNumber(field)).value_or(0);
  return number < 0 || number > LastNumber ? std::int16_t{0} : number;
}

}  // namespace

Neighbours::Neighbours(std::string_view links)
    : count_(static_cast<std::size_t>(LinkCount(links))) {
  for (std::size_t k = 0; k < count_; ++k) entries_[k] = FieldAt(links, 2 + 2 * k);
}

bool Neighbours::List(std::int16_t area) const {
  return std::find(begin(), end(), area) != end();
}

std::int16_t LinkCount(std::string_view links) {
  return FieldAt(links, 0);
}

std::int16_t IsNeighbour(const Tables& tables, std::int16_t a, std::int16_t b) {
  return Neighbours(tables.AreaLinks(a)).List(b) ? 1 : 0;
}

}  // namespace terramark
