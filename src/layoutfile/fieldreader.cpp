#include "layoutfile/fieldreader.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "document/numbers.h"

namespace terramark {

namespace {

bool EndsLine(char c) {
  return c == '\r' || c == '\n';
}

/// The number when the text is nothing but digits and fits the type, as nearly all are.
template <typename Number>
std::optional<Number> ReadDigits(std::string_view text) {
  const char* end = text.data() + text.size();
  Number number = 0;
  const auto read = std::from_chars(text.data(), end, number);
  return read.ec == std::errc() && read.ptr == end ? std::optional(number) : std::nullopt;
}

}  // namespace

std::optional<std::string_view> FieldReader::Line() {
  if (AtEnd()) return std::nullopt;
  const std::size_t start = place_;
  while (!AtEnd() && !EndsLine(Next())) ++place_;
  const std::string_view line = bytes_.substr(start, place_ - start);
  PassLineEnd();
  return line;
}

template <>
std::optional<std::string_view> FieldReader::Field() {
  if (!BeginField()) return std::nullopt;
  if (Next() == '"') return Quoted();
  const std::string_view text = Until(false);
  PassSeparator();
  return text;
}

template <>
std::optional<std::int16_t> FieldReader::Field() {
  const auto text = Number();
  if (!text) return std::nullopt;
  const auto digits = ReadDigits<std::int16_t>(*text);
  return digits ? digits : WholeNumber(ReadNumber(*text));
}

template <>
std::optional<float> FieldReader::Field() {
  const auto text = Number();
  if (!text) return std::nullopt;
  const auto digits = ReadDigits<std::int32_t>(*text);
  const double value = digits ? *digits : ReadNumber(*text);
  if (std::abs(value) > std::numeric_limits<float>::max()) return std::nullopt;
  return static_cast<float>(value);
}

template <>
std::optional<Components> FieldReader::Field() {
  Components numbers{};
  for (std::int16_t& number : numbers) {
    if (!Take(number)) return std::nullopt;
  }
  return numbers;
}

/// The text of a number field; blanks behind it belong to its separator and may be all of it.
std::optional<std::string_view> FieldReader::Number() {
  if (!BeginField()) return std::nullopt;
  if (Next() == '"') return Quoted();
  const std::string_view number = Until(true);
  PassBlanks();
  PassSeparator();
  return number;
}

bool FieldReader::BeginField() {
  PassBlanks();
  return !AtEnd();
}

/// What stands in the quotes, over line ends too; the rest up to the separator is dropped. Nothing
/// when nothing closes them.
std::optional<std::string_view> FieldReader::Quoted() {
  const std::size_t start = place_ + 1;
  const std::size_t close = bytes_.find('"', start);
  if (close == std::string_view::npos) return std::nullopt;
  place_ = close + 1;
  Until(false);
  PassSeparator();
  return bytes_.substr(start, close - start);
}

std::string_view FieldReader::Until(bool blankEnds) {
  const std::size_t start = place_;
  while (!AtEnd() && Next() != ',' && !EndsLine(Next()) && !(blankEnds && Next() == ' ')) ++place_;
  return bytes_.substr(start, place_ - start);
}

void FieldReader::PassBlanks() {
  while (!AtEnd() && Next() == ' ') ++place_;
}

void FieldReader::PassSeparator() {
  if (!AtEnd() && Next() == ',') {
    ++place_;
  } else {
    PassLineEnd();
  }
}

void FieldReader::PassLineEnd() {
  if (AtEnd() || !EndsLine(Next())) return;
  if (bytes_.substr(place_, 2) == "\r\n") ++place_;
  ++place_;
}

}  // namespace terramark
