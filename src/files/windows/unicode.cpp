#include "files/windows/unicode.h"

#include <windows.h>

namespace terramark::files {

std::wstring ToUtf16(std::string_view text) {
  const int length = static_cast<int>(text.size());
  // No character takes more units than bytes.
  std::wstring units(text.size(), L'\0');
  const int count = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), length, units.data(), length);
  units.resize(static_cast<std::size_t>(count));
  return units;
}

std::string FromUtf16(std::wstring_view text) {
  constexpr int BytesPerUnit = 3;
  const int length = static_cast<int>(text.size());
  std::string bytes(text.size() * BytesPerUnit, '\0');
  const int count = ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(),
                                          length * BytesPerUnit, nullptr, nullptr);
  bytes.resize(static_cast<std::size_t>(count));
  return bytes;
}

}  // namespace terramark::files
