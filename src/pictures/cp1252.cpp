#include "pictures/cp1252.h"

#include <QFile>
#include <QList>
#include <algorithm>
#include <array>

namespace terramark::pictures {

namespace {

constexpr char32_t FirstOfOwn = 0x80;
constexpr qsizetype PieceLength = 200;

// Bytes 0x80 to 0x9F; all others stand for the character of the same number.
// clang-format off
constexpr auto OwnCharacters = std::to_array<char16_t>({
    // 0/8   1/9     2/A     3/B     4/C     5/D     6/E     7/F
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98
});
// clang-format on

bool OwnByte(char32_t number) {
  return number >= FirstOfOwn && number < FirstOfOwn + OwnCharacters.size();
}

char ByteOf(char32_t character) {
  if (character <= 0xFF && !OwnByte(character)) return static_cast<char>(character);
  const auto* const own = std::find(OwnCharacters.begin(), OwnCharacters.end(), character);
  if (own == OwnCharacters.end()) return '?';
  return static_cast<char>(FirstOfOwn + static_cast<char32_t>(own - OwnCharacters.begin()));
}

/// Whether a character may be one with what stands before it: marks, halves of a character, and the
/// vowels and finals of Korean syllables.
bool MayCompose(QChar character) {
  return character.isMark() || character.isSurrogate() ||
         (character >= QChar(0x1161) && character <= QChar(0x11C2));
}

}  // namespace

QString FromCp1252(const std::string& text) {
  QString unicode;
  unicode.reserve(static_cast<qsizetype>(text.size()));
  for (const char byte : text) {
    const char32_t number = static_cast<unsigned char>(byte);
    unicode += OwnByte(number) ? QChar(OwnCharacters[number - FirstOfOwn]) : QChar(number);
  }
  return unicode;
}

std::string ToCp1252(const QString& text) {
  std::string bytes;
  for (const char32_t character : text.toUcs4()) bytes += ByteOf(character);
  return bytes;
}

QString ComposedForm(const QString& text) {
  // Composing moves all that follows for each mark it takes in, so it gets pieces. A piece that
  // finds no end, since all are marks, is cut where it is.
  QString composed;
  for (qsizetype from = 0, end = 0; from < text.size(); from = end) {
    const qsizetype last = std::min(from + 2 * PieceLength, text.size());
    end = std::min(from + PieceLength, last);
    while (end < last && MayCompose(text[end])) ++end;
    composed += text.sliced(from, end - from).normalized(QString::NormalizationForm_C);
  }
  return composed;
}

std::string InSystemEncoding(const std::string& text) {
  return QFile::encodeName(FromCp1252(text)).toStdString();
}

std::string FromSystemEncoding(const std::string& name) {
  return ToCp1252(QFile::decodeName(name.c_str()));
}

bool FitsCp1252(const QString& text) {
  return FromCp1252(ToCp1252(text)) == text;
}

}  // namespace terramark::pictures
