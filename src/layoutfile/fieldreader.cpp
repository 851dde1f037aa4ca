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
bool ReadDigits(std::string_view text, Number& number) {
  const char* end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  return read.ec == std::errc() && read.ptr == end;
}

}  // namespace

bool FieldReader::Line(std::string_view& line) {
  if (AtEnd()) return false;
  const std::size_t start = place_;
  while (!AtEnd() && !EndsLine(Next())) ++place_;
  line = bytes_.substr(start, place_ - start);
  PassLineEnd();
  return true;
}

bool FieldReader::Field(std::string_view& text) {
  if (!BeginField()) return false;
  if (Next() == '"') return Quoted(text);
  text = Until(false);
  PassSeparator();
  return true;
}

bool FieldReader::Field(std::int16_t& number) {
  std::string_view text;
  if (!Number(text)) return false;
  if (ReadDigits(text, number)) return true;
  const auto whole = WholeNumber(ReadNumber(text));
  if (whole) number = *whole;
  return whole.has_value();
}

bool FieldReader::Field(float& number) {
  std::string_view text;
  if (!Number(text)) return false;
  std::int32_t digits = 0;
  const double value = ReadDigits(text, digits) ? digits : ReadNumber(text);
  if (std::abs(value) > std::numeric_limits<float>::max()) return false;
  number = static_cast<float>(value);
  return true;
}

bool FieldReader::Field(Components& numbers) {
  return Fields(numbers[0], numbers[1], numbers[2]);
}

/// The text of a number field; blanks behind it belong to its separator and may be all of it.
bool FieldReader::Number(std::string_view& number) {
  if (!BeginField()) return false;
  if (Next() == '"') return Quoted(number);
  number = Until(true);
  PassBlanks();
  PassSeparator();
  return true;
}

bool FieldReader::BeginField() {
  PassBlanks();
  return !AtEnd();
}

/// What stands in the quotes, over line ends too; the rest up to the separator is dropped. False
/// when nothing closes them.
bool FieldReader::Quoted(std::string_view& text) {
  const std::size_t start = place_ + 1;
  const std::size_t close = bytes_.find('"', start);
  if (close == std::string_view::npos) return false;
  text = bytes_.substr(start, close - start);
  place_ = close + 1;
  Until(false);
  PassSeparator();
  return true;
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
