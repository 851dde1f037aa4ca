// The code pages of the system, for texts in encodings of other languages.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace terramark::files {

/// The UTF-16 of the few bytes of one letter, in the code page with this number of Windows, such as
/// 1253 or 932. Empty when the bytes are no letter of it; nothing when the system lacks the page.
std::optional<std::u16string> DecodeLetterBytes(int codePage, std::string_view bytes);

}  // namespace terramark::files
