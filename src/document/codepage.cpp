#include "document/codepage.h"

#include <algorithm>
#include <array>

namespace terramark {

namespace {

constexpr char32_t FirstOfOwn = 0x80;

/// Bytes 0x80 to 0x9F; all others stand for the character of the same number.
// clang-format off
constexpr auto OwnCharacters = std::to_array<char16_t>({
    // 0/8   1/9     2/A     3/B     4/C     5/D     6/E     7/F
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98
});
// clang-format on

bool OwnByte(char32_t number) {
  return number >= FirstOfOwn && number < FirstOfOwn + OwnCharacters.size();
}

}  // namespace

char16_t DecodeByte(char byte) {
  const char16_t number = static_cast<unsigned char>(byte);
  return OwnByte(number) ? OwnCharacters[number - FirstOfOwn] : number;
}

char EncodeCharacter(char32_t character) {
  if (character <= 0xFF && !OwnByte(character)) return static_cast<char>(character);
  const auto* const own = std::find(OwnCharacters.begin(), OwnCharacters.end(), character);
  if (own == OwnCharacters.end()) return '?';
  return static_cast<char>(FirstOfOwn + static_cast<char32_t>(own - OwnCharacters.begin()));
}

std::string ToUtf8(std::string_view text) {
  std::string utf8;
  for (const char byte : text) {
    const char16_t character = DecodeByte(byte);
    if (character < 0x80) {
      utf8 += byte;
      continue;
    }
    // Two bytes for a character of up to eleven bits, three for all others.
    if (character < 0x800) {
      utf8 += static_cast<char>(0xC0 | character >> 6);
    } else {
      utf8 += static_cast<char>(0xE0 | character >> 12);
      utf8 += static_cast<char>(0x80 | (character >> 6 & 0x3F));
    }
    utf8 += static_cast<char>(0x80 | (character & 0x3F));
  }
  return utf8;
}

}  // namespace terramark
