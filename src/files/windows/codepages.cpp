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
  // The system gives a control character for a byte that the page leaves open.
  constexpr wchar_t FirstControl = 0x80;
  constexpr wchar_t LastControl = 0x9F;
  if (count == 1 && out[0] >= FirstControl && out[0] <= LastControl) return std::u16string();
  return std::u16string(out.data(), out.data() + count);
}

}  // namespace terramark::files
