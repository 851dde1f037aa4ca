// Reads a Map Layout by whole lines and by fields, over the bytes of the file in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <tuple>

#include "document/tables.h"

namespace terramark {

/// A line end is CR LF, a lone CR or a lone LF, and separates fields as a comma does. Every read
/// gives nothing when the file ends before it and for a number that its type cannot hold; the
/// reader stands anywhere then and is done with. Texts point into the bytes, which must outlive
/// them.
class FieldReader {
 public:
  explicit FieldReader(std::string_view bytes) : bytes_(bytes) {}

  /// What is left of the present line, its line end used up.
  std::optional<std::string_view> Line();

  /// The next fields, each by its type: a text; a whole number, rounded, a tie to the even one; a
  /// float; three whole numbers. A number without digits is 0. Nothing when one of them fails.
  template <typename... Types>
  std::optional<std::tuple<Types...>> Fields() {
    // In braces they are read in this order.
    std::optional<std::tuple<Types...>> fields(std::tuple<Types...>{Next<Types>()...});
    if (failed_) fields.reset();
    return fields;
  }

  /// The next field alone.
  template <typename Type>
  std::optional<Type> Field() {
    const Type field = Next<Type>();
    return failed_ ? std::nullopt : std::optional(field);
  }

 private:
  /// Any value after a failure.
  template <typename Type>
  Type Next();

  std::string_view Number();
  std::string_view Quoted();
  std::string_view Until(bool blankEnds);
  bool BeginField();
  void PassBlanks();
  void PassSeparator();
  void PassLineEnd();
  bool AtEnd() const { return place_ == bytes_.size(); }
  char At() const { return bytes_[place_]; }

  std::string_view bytes_;
  std::size_t place_ = 0;
  bool failed_ = false;
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
