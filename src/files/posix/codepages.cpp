#include "files/codepages.h"

#include <iconv.h>

#include <array>
#include <bit>
#include <cstdint>

namespace terramark::files {

namespace {

/// A page that iconv knows by a name without its number.
struct NamedPage {
  int Number;
  const char* Name;
};

constexpr NamedPage NamedPages[] = {
    {936, "GBK"}, {949, "UHC"}, {950, "BIG5"}, {10000, "MACINTOSH"}};

std::string NameOf(int codePage) {
  for (const auto& [number, name] : NamedPages) {
    if (number == codePage) return name;
  }
  return "CP" + std::to_string(codePage);
}

class Converter {
 public:
  explicit Converter(const std::string& from) : handle_(iconv_open("UTF-16LE", from.c_str())) {}
  ~Converter() {
    if (IsOpen()) iconv_close(handle_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  bool IsOpen() const { return std::bit_cast<std::intptr_t>(handle_) != -1; }

  std::u16string Convert(std::string_view bytes) {
    static_assert(std::endian::native == std::endian::little);
    std::array<char16_t, 8> out{};
    char* from = const_cast<char*>(bytes.data());  // iconv does not write to its input
    char* to = reinterpret_cast<char*>(out.data());
    std::size_t fromLeft = bytes.size();
    std::size_t toLeft = sizeof out;
    if (iconv(handle_, &from, &fromLeft, &to, &toLeft) == static_cast<std::size_t>(-1)) return {};
    // Some code pages hold back a letter in case an accent follows.
    iconv(handle_, nullptr, nullptr, &to, &toLeft);
    return {out.data(), (sizeof out - toLeft) / sizeof(char16_t)};
  }

 private:
  iconv_t handle_;
};

}  // namespace

std::optional<std::u16string> DecodeLetterBytes(int codePage, std::string_view bytes) {
  Converter converter(NameOf(codePage));
  if (!converter.IsOpen()) return std::nullopt;
  return converter.Convert(bytes);
}

}  // namespace terramark::files
