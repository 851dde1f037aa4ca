// Link strings: an Area's neighbours as text, two digits of count and two digits for each.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/tables.h"

namespace terramark {

/// The neighbours in a link string, read once. Their number is the count at the beginning, whatever
/// the length. A count or an entry outside 0 to 99 reads as 0, as does an entry beyond the end.
class Neighbours {
 public:
  explicit Neighbours(std::string_view links);

  const std::int16_t* begin() const { return entries_.data(); }
  const std::int16_t* end() const { return entries_.data() + count_; }
  std::int16_t Count() const { return static_cast<std::int16_t>(count_); }
  bool Contains(std::int16_t area) const;

 private:
  std::array<std::int16_t, TableSize> entries_;
  std::size_t count_ = 0;
};

/// The link strings without neighbours that the commands write: for an Area that was cleared, and
/// for one that is new or has lost its last neighbour.
inline constexpr char ClearedLinks[] = " ";
inline constexpr char EmptyLinks[] = "  ";

/// The string of these neighbours, in their order.
std::string MakeLinks(const std::vector<std::int16_t>& areas);
/// Appends an entry for an Area, 0 to 99; unchanged when the Area is listed already.
std::string WithEntry(std::string links, std::int16_t area);
/// Removes the entries for an Area, and counts one entry less. Unchanged unless an entry has just
/// the two digits of that Area.
std::string WithoutEntry(const std::string& links, std::int16_t area);

/// The number of neighbours that a link string declares, 0 to 99.
std::int16_t LinkCount(std::string_view links);

/// 1 when Area b is in AreaLinks(a), else 0. a is 0 to 99.
std::int16_t IsNeighbour(const Tables& tables, std::int16_t a, std::int16_t b);

}  // namespace terramark
