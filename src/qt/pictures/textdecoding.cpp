#include "qt/pictures/textdecoding.h"

#include <iconv.h>

#include <array>
#include <memory>

namespace terramark::qt {
namespace {

constexpr int SymbolCharset = 2;

struct Charset {
  int Number;
  const char* CodePage;
  bool DoubleByte;
};

constexpr Charset Charsets[] = {
    {77, "MACINTOSH", false},  //
    {128, "CP932", true},      //
    {129, "UHC", true},        //
    {134, "GBK", true},        //
    {136, "BIG5", true},       //
    {161, "CP1253", false},    //
    {162, "CP1254", false},    //
    {163, "CP1258", false},    //
    {177, "CP1255", false},    //
    {178, "CP1256", false},    //
    {186, "CP1257", false},    //
    {204, "CP1251", false},    //
    {222, "CP874", false},     //
    {238, "CP1250", false},    //
    {255, "CP437", false},     //
};

constexpr Charset Western{0, "CP1252", false};

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

// The symbol font's own encoding, from 0x20 on; 0 where it has nothing.
constexpr std::array<char16_t, 96> SymbolLow = {
    u' ',   u'!',   0x2200, u'#',   0x2203, u'%',   u'&',   0x220D, u'(',   u')',   0x2217, u'+',
    u',',   0x2212, u'.',   u'/',   u'0',   u'1',   u'2',   u'3',   u'4',   u'5',   u'6',   u'7',
    u'8',   u'9',   u':',   u';',   u'<',   u'=',   u'>',   u'?',   0x2245, 0x0391, 0x0392, 0x03A7,
    0x0394, 0x0395, 0x03A6, 0x0393, 0x0397, 0x0399, 0x03D1, 0x039A, 0x039B, 0x039C, 0x039D, 0x039F,
    0x03A0, 0x0398, 0x03A1, 0x03A3, 0x03A4, 0x03A5, 0x03C2, 0x03A9, 0x039E, 0x03A8, 0x0396, u'[',
    0x2234, u']',   0x22A5, u'_',   0x203E, 0x03B1, 0x03B2, 0x03C7, 0x03B4, 0x03B5, 0x03C6, 0x03B3,
    0x03B7, 0x03B9, 0x03D5, 0x03BA, 0x03BB, 0x03BC, 0x03BD, 0x03BF, 0x03C0, 0x03B8, 0x03C1, 0x03C3,
    0x03C4, 0x03C5, 0x03D6, 0x03C9, 0x03BE, 0x03C8, 0x03B6, u'{',   u'|',   u'}',   0x223C, 0};

// From 0xA0 on.
constexpr std::array<char16_t, 96> SymbolHigh = {
    0x20AC, 0x03D2, 0x2032, 0x2264, 0x2044, 0x221E, 0x0192, 0x2663, 0x2666, 0x2665, 0x2660, 0x2194,
    0x2190, 0x2191, 0x2192, 0x2193, 0x00B0, 0x00B1, 0x2033, 0x2265, 0x00D7, 0x221D, 0x2202, 0x2022,
    0x00F7, 0x2260, 0x2261, 0x2248, 0x2026, 0x23D0, 0x23AF, 0x21B5, 0x2135, 0x2111, 0x211C, 0x2118,
    0x2297, 0x2295, 0x2205, 0x2229, 0x222A, 0x2283, 0x2287, 0x2284, 0x2282, 0x2286, 0x2208, 0x2209,
    0x2220, 0x2207, 0x00AE, 0x00A9, 0x2122, 0x220F, 0x221A, 0x22C5, 0x00AC, 0x2227, 0x2228, 0x21D4,
    0x21D0, 0x21D1, 0x21D2, 0x21D3, 0x25CA, 0x2329, 0x00AE, 0x00A9, 0x2122, 0x2211, 0x239B, 0x239C,
    0x239D, 0x23A1, 0x23A2, 0x23A3, 0x23A7, 0x23A8, 0x23A9, 0x23AA, 0,      0x232A, 0x222B, 0x2320,
    0x23AE, 0x2321, 0x239E, 0x239F, 0x23A0, 0x23A4, 0x23A5, 0x23A6, 0x23AB, 0x23AC, 0x23AD, 0};

QString DecodeSymbol(unsigned char byte) {
  char16_t letter = 0;
  if (byte >= 0x20 && byte < 0x80) letter = SymbolLow[byte - 0x20];
  if (byte >= 0xA0) letter = SymbolHigh[byte - 0xA0U];
  return letter == 0 ? QString(QChar::ReplacementCharacter) : QString(QChar(letter));
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
  bool Open() const { return handle_ != reinterpret_cast<iconv_t>(-1); }
  iconv_t handle_;
};

}  // namespace

std::vector<Letter> DecodeText(QByteArrayView bytes, const Font& font) {
  std::vector<Letter> letters;
  const bool symbol = font.Charset == SymbolCharset || font.Face.toLower() == "symbol";
  const Charset& charset = CharsetOf(font.Charset);
  Converter converter(charset.CodePage);
  for (qsizetype at = 0; at < bytes.size();) {
    const auto byte = static_cast<unsigned char>(bytes[at]);
    if (symbol) {
      letters.push_back({DecodeSymbol(byte), 1});
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

}  // namespace terramark::qt
