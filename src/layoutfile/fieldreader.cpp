#include "layoutfile/fieldreader.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "document/numbers.h"

namespace terramark {

namespace {

/// The number when the text has only digits and fits the type, as nearly all do.
template <typename Number>
std::optional<Number> ReadDigits(std::string_view text) {
  const char* end = text.data() + text.size();
  Number number = 0;
  const auto read = std::from_chars(text.data(), end, number);
  return read.ec == std::errc() && read.ptr == end ? std::optional(number) : std::nullopt;
}

}  // namespace

std::optional<std::string_view> FieldReader::Line() {
  startOffset_ = offset_;
  if (AtEnd()) FailAtEnd();
  if (failed_) return std::nullopt;
  const std::size_t start = offset_;
  while (!AtEnd() && !EndsLine(At())) ++offset_;
  const std::string_view line = bytes_.substr(start, offset_ - start);
  SkipLineEnd();
  return line;
}

template <>
std::string_view FieldReader::Next() {
  if (!BeginField()) return {};
  if (At() == '"') return Quoted();
  const std::string_view text = Until(Blank::Kept);
  SkipSeparator();
  return text;
}

template <>
std::int16_t FieldReader::Next() {
  const std::string_view text = Number();
  if (const auto digits = ReadDigits<std::int16_t>(text)) return *digits;
  const auto whole = WholeNumber(ReadNumber(text));
  failed_ = failed_ || !whole;
  return whole.value_or(0);
}

template <>
float FieldReader::Next() {
  const std::string_view text = Number();
  const auto digits = ReadDigits<std::int32_t>(text);
  const double value = digits ? *digits : ReadNumber(text);
  if (std::abs(value) <= std::numeric_limits<float>::max()) return static_cast<float>(value);
  failed_ = true;
  return 0;
}

template <>
Components FieldReader::Next() {
  Components numbers{};
  for (std::int16_t& number : numbers) number = Next<std::int16_t>();
  return numbers;
}

/// The text of a number field. Blanks after it belong to its separator, and may be the whole
/// separator.
std::string_view FieldReader::Number() {
  if (!BeginField()) return {};
  if (At() == '"') return Quoted();
  const std::string_view number = Until(Blank::Ends);
  SkipBlanks();
  SkipSeparator();
  return number;
}

/// The text in quotes, which may contain line ends. The rest up to the separator is dropped. Fails
/// without a closing quote.
std::string_view FieldReader::Quoted() {
  const std::size_t start = offset_ + 1;
  const std::size_t close = bytes_.find('"', start);
  if (close == std::string_view::npos) {
    FailAtEnd();
    return {};
  }
  offset_ = close + 1;
  if (Until(Blank::Kept).find_first_not_of(' ') != std::string_view::npos)
    truncatedTexts_.push_back(start);
  SkipSeparator();
  return bytes_.substr(start, close - start);
}

bool FieldReader::BeginField() {
  SkipBlanks();
  return !AtEnd() || FailAtEnd();
}

bool FieldReader::FailAtEnd() {
  // A failure after another one does not change the reason.
  ended_ = ended_ || !failed_;
  failed_ = true;
  return false;
}

std::string_view FieldReader::Until(Blank blank) {
  const bool blankEnds = blank == Blank::Ends;
  const std::size_t start = offset_;
  while (!AtEnd() && At() != ',' && !EndsLine(At()) && !(blankEnds && At() == ' ')) ++offset_;
  return bytes_.substr(start, offset_ - start);
}

void FieldReader::SkipBlanks() {
  while (!AtEnd() && At() == ' ') ++offset_;
}

void FieldReader::SkipSeparator() {
  if (!AtEnd() && At() == ',') {
    ++offset_;
  } else {
    SkipLineEnd();
  }
}

void FieldReader::SkipLineEnd() {
  if (AtEnd() || !EndsLine(At())) return;
  if (bytes_.substr(offset_, 2) == "\r\n") ++offset_;
  ++offset_;
}

std::vector<int> FieldReader::LinesOf(const std::vector<std::size_t>& places) const {
  std::vector<int> lines;
  std::size_t at = 0;
  int line = 1;
  for (const std::size_t place : places) {
    for (; at < place; ++at) {
      const bool pair = bytes_[at] == '\r' && at + 1 < bytes_.size() && bytes_[at + 1] == '\n';
      if (EndsLine(bytes_[at]) && !pair) ++line;
    }
    lines.push_back(line);
  }
  return lines;
}

}  // namespace terramark
