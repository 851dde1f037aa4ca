// The text of a Map Layout while it is written, line by line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "document/tables.h"

namespace terramark {

class LayoutText {
 public:
  LayoutText() { text_.reserve(UsualBytes); }

  /// A line of text, as it is.
  void Raw(std::string_view text) {
    text_ += text;
    text_ += "\r\n";
  }

  /// A line of fields, each by its type: a whole number, a float in its shortest form, a text in
  /// quotes, three whole numbers.
  template <typename First, typename... Rest>
  void Fields(const First& first, const Rest&... rest) {
    Put(first);
    ((text_ += ',', Put(rest)), ...);
    text_ += "\r\n";
  }

  const std::string& Text() const { return text_; }

 private:
  /// Enough for most maps, so that the text is seldom reallocated.
  static constexpr std::size_t UsualBytes = 16384;

  void Put(std::int16_t number);
  void Put(float number);
  void Put(std::string_view text);
  void Put(const Components& numbers);

  std::string text_;
};

}  // namespace terramark
