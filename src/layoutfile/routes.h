// The walks that a layout has for the game: for every Area one through its own Region.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "document/tables.h"

namespace terramark {

/// A walk: its Areas in order, and the numbers that it may not enter again.
class Route {
 public:
  void Append(std::int16_t area);
  void Exclude(std::int16_t area) { excluded_.set(static_cast<std::size_t>(area)); }
  bool Excludes(std::int16_t area) const { return excluded_.test(static_cast<std::size_t>(area)); }
  std::int16_t Length() const { return length_; }
  std::span<const std::uint8_t> Areas() const {
    return {areas_.data(), static_cast<std::size_t>(length_)};
  }

 private:
  std::array<std::uint8_t, TableSize> areas_;
  std::bitset<TableSize> excluded_;
  std::int16_t length_ = 0;
};

/// Finds the routes of a map as it is now; its links are read once for all Areas.
class RouteFinder {
 public:
  explicit RouteFinder(const Tables& tables);

  /// The route text of an Area, 1 to 99: the two-digit number of Areas on the longest of the walks
  /// that begin at its neighbours, and these Areas, with commas between them; one blank for no
  /// route. Of walks of equal length the one through the earlier neighbour in link order is taken.
  std::string BlitzRoute(std::int16_t a) const;

 private:
  Route WalkFrom(std::int16_t first, std::int16_t a) const;
  std::int16_t NextRouteStep(const Route& route, std::int16_t cur) const;
  std::span<const std::uint8_t> NeighboursInRegion(std::int16_t area) const;

  // The entries of Area i are from index starts_[i] to starts_[i + 1], in link order.
  std::vector<std::uint8_t> entries_;
  std::array<std::size_t, TableSize + 1> starts_{};
};

}  // namespace terramark
