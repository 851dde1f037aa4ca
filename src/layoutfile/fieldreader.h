// Reads a Map Layout by whole lines and by fields, from the bytes of the file in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <tuple>
#include <vector>

#include "document/tables.h"

namespace terramark {

/// A line end is CR LF, a lone CR or a lone LF; it separates fields as a comma does. A read gives
/// nothing when the file ends before it, or for a number that its type cannot hold; after that
/// nothing more can be read. Texts refer to the bytes, which must outlive them.
class FieldReader {
 public:
  explicit FieldReader(std::string_view bytes) : bytes_(bytes) {}

  /// The rest of the present line; its line end is skipped.
  std::optional<std::string_view> Line();

  /// The next fields, each by its type: a text; a whole number, rounded, a tie to the even one; a
  /// float; three whole numbers. A number without digits is 0. Nothing when one of them fails.
  template <typename... Types>
  std::optional<std::tuple<Types...>> Fields() {
    startOffset_ = offset_;
    // In braces they are evaluated in this order.
    std::optional<std::tuple<Types...>> fields(std::tuple<Types...>{Next<Types>()...});
    if (failed_) fields.reset();
    return fields;
  }

  /// The next field alone.
  template <typename Type>
  std::optional<Type> Field() {
    startOffset_ = offset_;
    const Type field = Next<Type>();
    return failed_ ? std::nullopt : std::optional(field);
  }

  // For reports about the file. An offset is the number of bytes before a place.

  /// The offset of the next field.
  std::size_t Offset() const { return offset_; }
  /// The offset at which the last call of Line, Fields or Field began.
  std::size_t StartOffset() const { return startOffset_; }
  bool BehindComma() const { return offset_ > 0 && bytes_[offset_ - 1] == ','; }
  bool AtEnd() const { return offset_ == bytes_.size(); }
  /// Whether a read failed because the file ended.
  bool Ended() const { return ended_; }
  /// The line of an offset, counted from 1.
  int LineOf(std::size_t place) const { return LinesOf({place}).front(); }
  /// The lines of several offsets, which must ascend.
  std::vector<int> LinesOf(const std::vector<std::size_t>& places) const;
  /// The offsets of the quoted texts after which something was dropped.
  const std::vector<std::size_t>& TruncatedTexts() const { return truncatedTexts_; }

 private:
  /// Returns any value after a failure.
  template <typename Type>
  Type Next();

  std::string_view Number();
  std::string_view Quoted();
  /// The rest of a field up to its separator, or up to a blank where a blank ends it.
  enum class Blank { Kept, Ends };
  std::string_view Until(Blank blank);
  bool BeginField();
  void SkipBlanks();
  void SkipSeparator();
  void SkipLineEnd();
  static bool EndsLine(char c) { return c == '\r' || c == '\n'; }
  char At() const { return bytes_[offset_]; }
  bool FailAtEnd();

  std::string_view bytes_;
  std::size_t offset_ = 0;
  std::size_t startOffset_ = 0;
  bool failed_ = false;
  bool ended_ = false;
  std::vector<std::size_t> truncatedTexts_;
};

template <>
std::string_view FieldReader::Next();
template <>
std::int16_t FieldReader::Next();
template <>
float FieldReader::Next();
template <>
Components FieldReader::Next();

}  // namespace terramark
