#include "layoutfile/layouttext.h"

#include <gtest/gtest.h>

namespace terramark {
namespace {

TEST(LayoutText, FloatsAreShortWithoutExponentAndWithinSevenDigits) {
  const struct {
    float Value;
    const char* Text;
  } cases[]{
      {15, "15"},
      {-0.0F, "0"},
      {-12.5F, "-12.5"},
      {0.5F, "0.5"},
      {-0.0625F, "-0.0625"},
      {0.1F, "0.1"},
      {1e-7F, "0.0000001"},
      {100.3F, "100.3"},
      {16777218, "16777220"},
      {1 / 3.0F, "0.3333333"},
      {200 * 0.8F / 3, "53.33333"},
      {3e9F, "3000000000"},
      {1.5e20F, "150000000000000000000"},
  };
  for (const auto& [value, text] : cases) EXPECT_EQ(FloatText(value), text);
}

TEST(LayoutText, LinesHoldTheirFieldsInTheFormOfTheirType) {
  LayoutText file;
  file.Raw("a \"raw\", line");
  file.Fields(std::int16_t{-7}, std::string_view("Lake, \"N\""), Components{0, 256, 9}, 2.5F);
  EXPECT_EQ(file.Text(), "a \"raw\", line\r\n-7,\"Lake, \"N\"\",0,256,9,2.5\r\n");
}

}  // namespace
}  // namespace terramark
