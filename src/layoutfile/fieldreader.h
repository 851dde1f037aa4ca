// Reads a Map Layout by whole lines and by fields, over the bytes of the file in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "document/tables.h"

namespace terramark {

/// A line end is CR LF, a lone CR or a lone LF, and separates fields as a comma does. Every read is
/// false when the file ends before it and for a number that its type cannot hold; the reader stands
/// anywhere then and is done with. Texts point into the bytes, which must outlive them.
class FieldReader {
 public:
  explicit FieldReader(std::string_view bytes) : bytes_(bytes) {}

  /// What is left of the present line, its line end used up.
  bool Line(std::string_view& line);

  /// The next fields, each by the type of its argument: a text; a whole number, rounded, a tie to
  /// the even one; a float; three whole numbers. A number without digits is 0.
  template <typename... Types>
  bool Fields(Types&... fields) {
    return (Field(fields) && ...);
  }

 private:
  bool Field(std::string_view& text);
  bool Field(std::int16_t& number);
  bool Field(float& number);
  bool Field(Components& numbers);

  bool Number(std::string_view& number);
  bool BeginField();
  bool Quoted(std::string_view& text);
  std::string_view Until(bool blankEnds);
  void PassBlanks();
  void PassSeparator();
  void PassLineEnd();
  bool AtEnd() const { return place_ == bytes_.size(); }
  char Next() const { return bytes_[place_]; }

  std::string_view bytes_;
  std::size_t place_ = 0;
};

}  // namespace terramark
