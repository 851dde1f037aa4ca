#include "metafile/textdecoding.h"

#include <string_view>

#include "files/codepages.h"
#include "metafile/fontmatch.h"
#include "metafile/symbolencoding.h"

namespace terramark::metafile {
namespace {

struct Charset {
  int CodePage;  // its number in Windows
  int Number;
  bool DoubleByte;
};

constexpr Charset Charsets[] = {
    {10000, 77, false},  //
    {932, 128, true},    //
    {949, 129, true},    //
    {936, 134, true},    //
    {950, 136, true},    //
    {1253, 161, false},  //
    {1254, 162, false},  //
    {1258, 163, false},  //
    {1255, 177, false},  //
    {1256, 178, false},  //
    {1257, 186, false},  //
    {1251, 204, false},  //
    {874, 222, false},   //
    {1250, 238, false},  //
    {437, 255, false},   //
};

constexpr Charset Western{1252, 0, false};

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
  const std::string_view bytes(letter.data(), static_cast<std::size_t>(letter.size()));
  const auto decoded = files::DecodeLetterBytes(CharsetOf(font.Charset).CodePage, bytes);
  if (!decoded) return QString::fromLatin1(letter);
  return decoded->empty() ? QString(QChar::ReplacementCharacter)
                          : QString::fromStdU16String(*decoded);
}

}  // namespace terramark::metafile
