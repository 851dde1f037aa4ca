#include "pictures/textdecoding.h"

#include <iconv.h>

#include <array>
#include <bit>
#include <cstdint>

namespace terramark::pictures {
namespace {

constexpr int SymbolCharset = 2;
// Fonts of signs keep their letters here; a font without them shows its empty box.
constexpr char16_t PrivateArea = 0xF000;

struct Charset {
  const char* CodePage;
  int Number;
  bool DoubleByte;
};

constexpr Charset Charsets[] = {
    {"MACINTOSH", 77, false},  //
    {"CP932", 128, true},      //
    {"UHC", 129, true},        //
    {"GBK", 134, true},        //
    {"BIG5", 136, true},       //
    {"CP1253", 161, false},    //
    {"CP1254", 162, false},    //
    {"CP1258", 163, false},    //
    {"CP1255", 177, false},    //
    {"CP1256", 178, false},    //
    {"CP1257", 186, false},    //
    {"CP1251", 204, false},    //
    {"CP874", 222, false},     //
    {"CP1250", 238, false},    //
    {"CP437", 255, false},     //
};

constexpr Charset Western{"CP1252", 0, false};

const Charset& CharsetOf(int number) {
  for (const Charset& charset : Charsets) {
    if (charset.Number == number) return charset;
  }
  return Western;
}

bool IsLeadByte(int number, unsigned char byte) {
  constexpr int Japanese = 128;
  if (number == Japanese) return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
  return byte >= 0x81 && byte != 0xFF;
}

class Converter {
 public:
  explicit Converter(const char* codePage) : handle_(iconv_open("UTF-8", codePage)) {}
  ~Converter() {
    if (Open()) iconv_close(handle_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  QString Convert(QByteArrayView bytes) {
    if (!Open()) return QString::fromLatin1(bytes);
    std::array<char, 16> out{};
    char* from = const_cast<char*>(bytes.data());  // iconv does not write to its input
    char* to = out.data();
    std::size_t fromLeft = static_cast<std::size_t>(bytes.size());
    std::size_t toLeft = out.size();
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    if (iconv(handle_, &from, &fromLeft, &to, &toLeft) == static_cast<std::size_t>(-1)) {
      return QString(QChar::ReplacementCharacter);
    }
    // Some code pages hold a letter back in case an accent follows.
    iconv(handle_, nullptr, nullptr, &to, &toLeft);
    return QString::fromUtf8(out.data(), to - out.data());
  }

 private:
  bool Open() const { return std::bit_cast<std::intptr_t>(handle_) != -1; }
  iconv_t handle_;
};

}  // namespace

bool HoldsSigns(const Font& font) {
  return font.Charset == SymbolCharset || font.Face.toLower().startsWith("symbol");
}

std::vector<Letter> DecodeText(QByteArrayView bytes, const Font& font) {
  std::vector<Letter> letters;
  const bool signs = HoldsSigns(font);
  const Charset& charset = CharsetOf(font.Charset);
  Converter converter(charset.CodePage);
  for (qsizetype at = 0; at < bytes.size();) {
    const auto byte = static_cast<unsigned char>(bytes[at]);
    if (signs) {
      letters.push_back({QString(QChar(static_cast<char16_t>(PrivateArea + byte))), 1});
      ++at;
      continue;
    }
    const bool pair = charset.DoubleByte && IsLeadByte(font.Charset, byte) && at + 1 < bytes.size();
    const int length = pair ? 2 : 1;
    letters.push_back({converter.Convert(bytes.sliced(at, length)), length});
    at += length;
  }
  return letters;
}

}  // namespace terramark::pictures
