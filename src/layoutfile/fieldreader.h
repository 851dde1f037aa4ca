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

  /// The next field, by its type: a text; a whole number, rounded, a tie to the even one; a float;
  /// three whole numbers. A number without digits is 0.
  template <typename Type>
  std::optional<Type> Field();

  /// The next fields; nothing when one of them gives nothing.
  template <typename... Types>
  std::optional<std::tuple<Types...>> Fields() {
    std::tuple<Types...> fields;
    const bool all = std::apply([this](auto&... field) { return (Take(field) && ...); }, fields);
    return all ? std::optional(fields) : std::nullopt;
  }

 private:
  template <typename Type>
  bool Take(Type& field) {
    const std::optional<Type> read = Field<Type>();
    if (read) field = *read;
    return read.has_value();
  }

  std::optional<std::string_view> Number();
  std::optional<std::string_view> Quoted();
  bool BeginField();
  std::string_view Until(bool blankEnds);
  void PassBlanks();
  void PassSeparator();
  void PassLineEnd();
  bool AtEnd() const { return place_ == bytes_.size(); }
  char Next() const { return bytes_[place_]; }

  std::string_view bytes_;
  std::size_t place_ = 0;
};

template <>
std::optional<std::string_view> FieldReader::Field();
template <>
std::optional<std::int16_t> FieldReader::Field();
template <>
std::optional<float> FieldReader::Field();
template <>
std::optional<Components> FieldReader::Field();

}  // namespace terramark
