// Between UTF-8 and the UTF-16 of the system's calls. What cannot be converted becomes the
// replacement character.
#pragma once

#include <string>
#include <string_view>

namespace terramark::files {

/// Both take texts of less than 2 GiB.
std::wstring ToUtf16(std::string_view text);
std::string FromUtf16(std::wstring_view text);

}  // namespace terramark::files
