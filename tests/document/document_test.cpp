#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "document/links.h"
#include "document/numbers.h"

namespace terramark {
namespace {

TEST(Numbers, AreReadAsFarAsTheyGo) {
  const std::pair<const char*, double> cases[] = {
      {"7x", 7},      {"x7", 0},       {"", 0},         {"  ", 0},
      {".5", 0.5},    {"1.5.5", 1.5},  {"-5", -5},      {"+3", 3},
      {"- 1 2", -12}, {" 1 0 0", 100}, {"1e5", 1},      {"--5", 0},
      {"5-", 5},      {"-", 0},        {"-.25", -0.25}, {"16777215", 16777215},
      {"+-5", 0},
  };
  for (const auto& [text, value] : cases) EXPECT_EQ(ReadNumber(text), value) << text;
  EXPECT_GT(ReadNumber(std::string(400, '9')), 1e300);
  EXPECT_EQ(ReadNumber("-0." + std::string(400, '0') + "1"), 0);
}

TEST(Numbers, AreWrittenInTheirForms) {
  EXPECT_EQ(NumberText(7) + NumberText(0) + NumberText(-1), " 7 0-1");
  EXPECT_EQ(TwoDigit(0) + TwoDigit(9) + TwoDigit(10) + TwoDigit(99) + TwoDigit(100), "0009109900");
  EXPECT_EQ(WholeNumber(2.5), 2);
  EXPECT_EQ(WholeNumber(3.5), 4);
  EXPECT_EQ(WholeNumber(-32768.4), -32768);
  EXPECT_EQ(WholeNumber(32767.5), std::nullopt);
  EXPECT_EQ(WholeNumber(1e300), std::nullopt);
}

TEST(Links, AreReadByTheirCountAndAtTheirPlaces) {
  const std::map<std::string, std::vector<std::int16_t>> cases{
      {"", {}},           {" ", {}},           {"  ", {}},
      {"00", {}},         {"0012", {}},        {"-1", {}},
      {"017", {7}},       {"01 7xx", {7}},     {"020512", {5, 12}},
      {"02-105", {0, 5}}, {"0307", {7, 0, 0}}, {"020305ZZ99", {3, 5}}};
  for (const auto& [links, areas] : cases) {
    const Neighbours read(links);
    EXPECT_EQ(std::vector<std::int16_t>(read.begin(), read.end()), areas) << links;
  }
  Tables tables;
  tables.AreaLinks(4) = "020512";
  EXPECT_EQ(IsNeighbour(tables, 4, 12), 1);
  EXPECT_EQ(IsNeighbour(tables, 4, 51), 0) << "pairs are no substrings";
}

}  // namespace
}  // namespace terramark
