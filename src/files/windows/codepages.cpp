#include "files/codepages.h"

#include <windows.h>

#include <array>

namespace terramark::files {

std::optional<std::u16string> DecodeLetterBytes(int codePage, std::string_view bytes) {
  const auto page = static_cast<UINT>(codePage);
  if (::IsValidCodePage(page) == FALSE) return std::nullopt;
  std::array<wchar_t, 8> out{};
  const int count = ::MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes.data(),
                                          static_cast<int>(bytes.size()), out.data(), out.size());
  return std::u16string(out.data(), out.data() + count);
}

}  // namespace terramark::files
