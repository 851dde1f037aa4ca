#include "metafile/textdecoding.h"

#include <iconv.h>

#include <array>
#include <bit>
#include <cstdint>

#include "metafile/fontmatch.h"
#include "metafile/symbolencoding.h"

namespace terramark::metafile {
namespace {

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
    // Some code pages hold back a letter in case an accent follows.
    iconv(handle_, nullptr, nullptr, &to, &toLeft);
    return QString::fromUtf8(out.data(), to - out.data());
  }

 private:
  bool Open() const { return std::bit_cast<std::intptr_t>(handle_) != -1; }
  iconv_t handle_;
};

}  // namespace

int FirstLetterBytes(QByteArrayView text, const Font& font) {
  if (text.size() < 2 || !CharsetOf(font.Charset).DoubleByte) return 1;
  const bool pair = IsLeadByte(font.Charset, static_cast<unsigned char>(text[0])) &&
                    ContentsOf(font) == FontContents::Letters;
  return pair ? 2 : 1;
}

QString DecodeLetter(QByteArrayView letter, const Font& font) {
  const auto byte = static_cast<unsigned char>(letter[0]);
  switch (ContentsOf(font)) {
    case FontContents::Symbols:
      return QString(QChar(DecodeSymbol(byte)));
    case FontContents::PrivateSymbols:
      return QString(QChar(static_cast<char16_t>(PrivateUseStart + byte)));
    case FontContents::Letters:
      break;
  }
  return Converter(CharsetOf(font.Charset).CodePage).Convert(letter);
}

}  // namespace terramark::metafile
