#include "layoutfile/routes.h"

#include <gtest/gtest.h>

#include <vector>

#include "document/numbers.h"
#include "layoutfile/regionlinks.h"

namespace terramark {
namespace {

/// Areas 1 and on with their Regions and link strings.
Tables MapOf(const std::vector<std::pair<std::int16_t, std::string>>& areas) {
  Tables tables;
  for (const auto& [region, links] : areas) {
    ++tables.AreaCount;
    tables.AreaRegion(tables.AreaCount) = region;
    tables.AreaLinks(tables.AreaCount) = links;
  }
  return tables;
}

std::string RouteOf(const Tables& tables, std::int16_t area) {
  return RouteFinder(tables).BlitzRoute(area);
}

TEST(Routes, WalkIsGreedyAndTheFirstOfTheLongestStands) {
  Tables tables = MapOf({{1, "0102"}, {1, "03010304"}, {1, "0102"}, {1, "020205"}, {1, "0104"}});
  EXPECT_EQ(RouteOf(tables, 1), "02,02,03");  // 2, 4, 5 would be longer
  EXPECT_EQ(RouteOf(tables, 2), "02,04,05");  // the walks over 1 and 3 are shorter
  EXPECT_EQ(RouteOf(tables, 4), "02,02,01");
  tables.AreaLinks(2) = "03040301";
  EXPECT_EQ(RouteOf(tables, 1), "03,02,04,05");
  EXPECT_EQ(RouteOf(tables, 4), "02,02,03");
  tables.AreaLinks(5) = "020401";
  tables.AreaLinks(1) = "020502";
  EXPECT_EQ(RouteOf(tables, 1), "04,05,04,02,03");
}

TEST(Routes, StayInTheRegionAndOffTheStart) {
  // The last entries have no Area of the Region behind them.
  const Tables tables = MapOf({{1, "05020399-1xx"}, {2, "0201"}, {1, "020104"}, {2, "0103"}});
  EXPECT_EQ(RouteOf(tables, 1), "01,03");
  EXPECT_EQ(RouteOf(tables, 2), " ");
}

TEST(RegionLinks, ListLinksAcrossInOrder) {
  const Tables tables = MapOf({{1, "03030204"}, {2, "0104"}, {1, "020401"}, {2, "03020301"}});
  EXPECT_EQ(BridgeText(tables, 1), "020204");
  EXPECT_EQ(BridgeText(tables, 2), "");
  EXPECT_EQ(BreakText(tables, 1), "03,02,01,04,01,04,03");
  EXPECT_EQ(BreakText(tables, 3), "");
}

TEST(RegionLinks, AHundredLinksShowTwoDigitsOfTheCountAndAllPairs) {
  std::string links = "52";
  for (std::int16_t i = 3; i <= 54; ++i) links += TwoDigit(i);
  Tables tables = MapOf({{1, links}, {1, links}});
  tables.AreaCount = 54;
  const std::string breaks = BreakText(tables, 1);
  EXPECT_EQ(breaks.substr(0, 8), "04,03,01");
  EXPECT_EQ(breaks.size(), 2U + 104 * 6);
}

}  // namespace
}  // namespace terramark
