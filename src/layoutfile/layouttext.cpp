#include "layoutfile/layouttext.h"

#include <array>
#include <charconv>
#include <cmath>

namespace terramark {

namespace {

constexpr int SignificantDigits = 7;
/// Whole numbers below this have only significant digits.
constexpr float WholeLimit = 1e7F;

void AppendWhole(std::string& text, int number) {
  std::array<char, 12> digits;
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  text.append(digits.data(), written.ptr);
}

/// The digits of a positive number, and how many of them are before the point: negative, or more
/// than all, when there are zeros in between.
struct Decimal {
  std::string Digits;
  int Point = 0;
};

/// From a form such as 1.25e+02.
Decimal SplitScientific(std::string_view form) {
  const std::size_t exponent = form.find('e');
  Decimal decimal{std::string(form.substr(0, 1)), 0};
  if (exponent > 2) decimal.Digits += form.substr(2, exponent - 2);
  decimal.Digits.erase(decimal.Digits.find_last_not_of('0') + 1);
  const char* first = form.data() + exponent + 1;
  if (*first == '+') ++first;
  std::from_chars(first, form.data() + form.size(), decimal.Point);
  ++decimal.Point;
  return decimal;
}

Decimal ShortestDecimal(float value) {
  std::array<char, 24> form;
  char* const end = form.data() + form.size();
  const auto shortest = std::to_chars(form.data(), end, value, std::chars_format::scientific);
  Decimal decimal = SplitScientific({form.data(), shortest.ptr});
  if (decimal.Digits.size() <= SignificantDigits) return decimal;
  const auto rounded =
      std::to_chars(form.data(), end, value, std::chars_format::scientific, SignificantDigits - 1);
  return SplitScientific({form.data(), rounded.ptr});
}

/// The shortest decimal form, with at most 7 significant digits, a zero before the point below 1
/// and no exponent. Minus zero is 0.
void AppendFloat(std::string& text, float value) {
  if (std::abs(value) < WholeLimit && std::trunc(value) == value) {
    AppendWhole(text, static_cast<int>(value));
    return;
  }
  if (value < 0) text += '-';
  const Decimal decimal = ShortestDecimal(std::abs(value));
  const int size = static_cast<int>(decimal.Digits.size());
  const auto zeros = [](int count) { return std::string(static_cast<std::size_t>(count), '0'); };
  if (decimal.Point <= 0) {
    text += "0." + zeros(-decimal.Point) + decimal.Digits;
  } else if (decimal.Point >= size) {
    text += decimal.Digits + zeros(decimal.Point - size);
  } else {
    const auto point = static_cast<std::size_t>(decimal.Point);
    text += decimal.Digits.substr(0, point) + "." + decimal.Digits.substr(point);
  }
}

}  // namespace

void LayoutText::Put(std::int16_t number) {
  AppendWhole(text_, number);
}

void LayoutText::Put(float number) {
  AppendFloat(text_, number);
}

void LayoutText::Put(std::string_view text) {
  text_ += '"';
  text_ += text;
  text_ += '"';
}

void LayoutText::Put(const Components& numbers) {
  Put(numbers[0]);
  text_ += ',';
  Put(numbers[1]);
  text_ += ',';
  Put(numbers[2]);
}

}  // namespace terramark
