#include "layoutfile/fieldreader.h"

#include <gtest/gtest.h>

#include <string>

#include "layoutfile/layouttext.h"

namespace terramark {
namespace {

/// All fields of a type, each followed by a bar.
template <typename Type>
std::string AllFields(const std::string& bytes) {
  FieldReader file(bytes);
  std::string all;
  while (const auto field = file.Field<Type>()) {
    if constexpr (std::is_arithmetic_v<Type>) all += std::to_string(*field) + "|";
    if constexpr (!std::is_arithmetic_v<Type>) all += std::string(*field) + "|";
  }
  return all;
}

using Text = std::string_view;

TEST(FieldReader, TextsEndWhereTheirFormSays) {
  EXPECT_EQ(AllFields<Text>("  a b  ,c\r\n"), "a b  |c|");  // trailing blanks are the text's own
  EXPECT_EQ(AllFields<Text>("\"Lake, North\",x\"y"), "Lake, North|x\"y|");
  EXPECT_EQ(AllFields<Text>("\"two\r\nlines\",x"), "two\r\nlines|x|");
  EXPECT_EQ(AllFields<Text>("\"say \"hi\" now\",x"), "say |x|");  // the rest is lost
  EXPECT_EQ(AllFields<Text>("a\rb\nc\r\n,\n,"), "a|b|c||||");     // any of the three ends a line
}

TEST(FieldReader, NumbersRoundAndStopAtTheFirstOddCharacter) {
  EXPECT_EQ(AllFields<std::int16_t>("7 , 8  \r\n9 1\r2"), "7|8|9|1|2|");
  EXPECT_EQ(AllFields<std::int16_t>("2.5,3.5,-0.5,+4"), "2|4|0|4|");
  EXPECT_EQ(AllFields<std::int16_t>("1e3,7x,x7,,-,\"12\"junk,3"), "1|7|0|0|0|12|3|");
  EXPECT_EQ(AllFields<std::int16_t>("32767.4,-32768,32767.5,1"), "32767|-32768|");
  EXPECT_EQ(AllFields<float>("-.5,70000.25," + std::string(40, '9')), "-0.500000|70000.250000|");
  for (const char* bytes : {"", "   ", "32768", "-32769", "99999999999", "\"7"}) {
    EXPECT_EQ(AllFields<std::int16_t>(bytes), "") << bytes;
  }
}

TEST(FieldReader, ALineAfterTheLastFieldOfALineIsTheNextOne) {
  FieldReader file("1 \r\nHEAD, \"x\" \r\n\r\n");
  EXPECT_EQ(file.Field<std::int16_t>(), 1);
  EXPECT_EQ(file.Line(), "HEAD, \"x\" ");
  EXPECT_EQ(file.Line(), "");
  EXPECT_EQ(file.Line(), std::nullopt);
}

TEST(LayoutText, FloatsAreShortWithoutExponentAndWithinSevenDigits) {
  const std::pair<float, const char*> cases[]{{15, "15"},
                                              {-0.0F, "0"},
                                              {-12.5F, "-12.5"},
                                              {0.5F, "0.5"},
                                              {-0.0625F, "-0.0625"},
                                              {100.3F, "100.3"},
                                              {1e-7F, "0.0000001"},
                                              {1 / 3.0F, "0.3333333"},
                                              {16777218, "16777220"},
                                              {3e9F, "3000000000"},
                                              {160 / 3.0F, "53.33333"},
                                              {1.5e12F, "1500000000000"}};
  for (const auto& [value, text] : cases) {
    LayoutText line;
    line.Fields(value);
    EXPECT_EQ(line.Text(), text + std::string("\r\n"));
  }
}

}  // namespace
}  // namespace terramark
