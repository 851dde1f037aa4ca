#include "layoutfile/fieldreader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace terramark {
namespace {

TEST(FieldReader, TextsEndWhereTheirFormSays) {
  const struct {
    std::string Bytes;
    std::vector<std::string> Fields;
  } cases[]{
      {"  a b  ,c\r\n", {"a b  ", "c"}},  // trailing blanks are the text's own
      {"\"Lake, North\",x", {"Lake, North", "x"}},
      {"\"two\r\nlines\",x", {"two\r\nlines", "x"}},
      {"\"say \"hi\" now\",x", {"say ", "x"}},  // the rest up to the comma is lost
      {"a\"b,c", {"a\"b", "c"}},
      {"a\rb\nc\r\nd", {"a", "b", "c", "d"}},  // any of the three ends a line
      {",\n,", {"", "", ""}},
      {"\"  \"\r\n\" \"", {"  ", " "}},
  };
  for (const auto& [bytes, fields] : cases) {
    FieldReader file(bytes);
    std::vector<std::string> read;
    for (std::string_view field; file.Fields(field);) read.emplace_back(field);
    EXPECT_EQ(read, fields) << bytes;
  }
}

TEST(FieldReader, NumbersRoundAndStopAtTheFirstOddCharacter) {
  const struct {
    std::string Bytes;
    std::vector<std::int16_t> Numbers;
  } cases[]{
      {"7 , 8  \r\n9", {7, 8, 9}},  // one separator with the blanks before it
      {"1 2\r3", {1, 2, 3}},
      {"2.5,3.5,-0.5,+4", {2, 4, 0, 4}},
      {"1e3,7x,x7,,-", {1, 7, 0, 0, 0}},
      {"\"12\"junk,\"-3\"", {12, -3}},
      {"32767,-32768,32767.4", {32767, -32768, 32767}},
  };
  for (const auto& [bytes, numbers] : cases) {
    FieldReader file(bytes);
    std::vector<std::int16_t> read;
    for (std::int16_t number = 0; file.Fields(number);) read.push_back(number);
    EXPECT_EQ(read, numbers) << bytes;
  }
  float x = 0;
  float y = 0;
  EXPECT_TRUE(FieldReader("-.5,70000.25").Fields(x, y));
  EXPECT_EQ(x, -0.5F);
  EXPECT_EQ(y, 70000.25F);
}

TEST(FieldReader, FailsOnWhatIsNotThereOrDoesNotFit) {
  std::int16_t number = 0;
  float real = 0;
  std::string_view text;
  for (const char* bytes : {"", "   ", "32768", "32767.5", "-32769", "99999999999", "\"7"}) {
    EXPECT_FALSE(FieldReader(bytes).Fields(number)) << bytes;
  }
  EXPECT_FALSE(FieldReader(std::string(40, '9')).Fields(real));
  EXPECT_FALSE(FieldReader("\"no end").Fields(text));
  EXPECT_FALSE(FieldReader("").Line(text));
}

TEST(FieldReader, ALineAfterTheLastFieldOfALineIsTheNextOne) {
  FieldReader file("1 \r\nHEAD, \"x\" \r\n\r\nlast");
  std::int16_t number = 0;
  std::string_view head;
  std::string_view empty;
  std::string_view last;
  EXPECT_TRUE(file.Fields(number) && file.Line(head) && file.Line(empty) && file.Line(last));
  EXPECT_EQ(head, "HEAD, \"x\" ");
  EXPECT_EQ(empty, "");
  EXPECT_EQ(last, "last");
}

}  // namespace
}  // namespace terramark
