// The characters of code page 1252, in which the editor and its files keep texts.
#pragma once

#include <string>
#include <string_view>

namespace terramark {

/// The Unicode character of a byte. For the five bytes that the code page leaves open it is the
/// control character with the same number.
char16_t DecodeByte(char byte);

/// The byte of a Unicode character; "?" for one that the code page lacks.
char EncodeCharacter(char32_t character);

/// The text in UTF-8, for terminals and for the names of files.
std::string ToUtf8(std::string_view text);

}  // namespace terramark
