// Numbers as the document writes and reads them in texts.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace terramark {

/// Decimal text with one leading blank when n is not negative: " 7", " 0", "-1".
std::string NumberText(std::int32_t n);

/// Decimal text without a blank: "7", "-1".
std::string PlainNumber(std::int32_t n);

/// The two-digit form of 0 to 99. Of a larger number it is the last two digits, of a negative one
/// "0" and the last digit.
std::string TwoDigit(std::int16_t n);

/// Appends the two-digit form of 0 to 99; for places where there are hundreds of them.
inline void AppendTwoDigits(std::string& text, std::int16_t n) {
  text += static_cast<char>('0' + n / 10);
  text += static_cast<char>('0' + n % 10);
}

/// The number at the beginning of a text. Blanks are skipped, also between digits. An optional sign
/// is followed by digits with at most one point; any other character ends the number. A text
/// without digits reads as 0.
double ReadNumber(std::string_view text);

/// Rounded to the nearest whole number, a tie to the even one; nothing when the result has more
/// than 16 bits.
std::optional<std::int16_t> WholeNumber(double value);

}  // namespace terramark
