// Two-digit numbers, as link strings and the computed lines hold them by the hundred.
#pragma once

#include <cstdint>
#include <string>

namespace terramark {

/// Appends the two-digit form of 0 to 99.
inline void AppendTwoDigits(std::string& text, std::int16_t n) {
  text += static_cast<char>('0' + n / 10);
  text += static_cast<char>('0' + n % 10);
}

}  // namespace terramark
