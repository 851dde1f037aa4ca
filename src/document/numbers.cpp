#include "document/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace terramark {

std::string PlainNumber(std::int32_t n) {
  return std::to_string(n);
}

std::string NumberText(std::int32_t n) {
  return n < 0 ? PlainNumber(n) : " " + PlainNumber(n);
}

std::string TwoDigit(std::int16_t n) {
  const std::string digits = PlainNumber(n);
  if (n < 10) return "0" + digits.substr(digits.size() - 1);
  return digits.substr(digits.size() - 2);
}

double ReadNumber(std::string_view text) {
  std::string number;
  bool point = false;
  bool digits = false;
  for (const char c : text) {
    if (c == ' ') continue;
    if (c >= '0' && c <= '9') {
      digits = true;
    } else if (c == '.' && !point) {
      point = true;
    } else if (number.empty() && c == '+') {
      number = "0";
      continue;
    } else if (!(number.empty() && c == '-')) {
      break;
    }
    number += c;
  }
  if (!digits) return 0;
  double value = 0;
  const auto read = std::from_chars(number.data(), number.data() + number.size(), value,
                                    std::chars_format::fixed);
  if (read.ec == std::errc::result_out_of_range) {
    // Too many digits before the point, or only zeros for a long way after it.
    const bool tiny = number[number.find_first_not_of("-0")] == '.';
    value = tiny ? 0 : std::numeric_limits<double>::infinity() * (number[0] == '-' ? -1 : 1);
  }
  return value == 0 ? 0 : value;
}

std::optional<std::int16_t> WholeNumber(double value) {
  const double whole = std::nearbyint(value);
  if (!(whole >= std::numeric_limits<std::int16_t>::min() &&
        whole <= std::numeric_limits<std::int16_t>::max())) {
    return std::nullopt;
  }
  return static_cast<std::int16_t>(whole);
}

}  // namespace terramark
