#include "paint/cp1252.h"

#include <QList>
#include <algorithm>

#include "document/codepage.h"

namespace terramark::paint {

namespace {

constexpr qsizetype PieceLength = 200;

/// Whether a character may combine with the one before it: marks, halves of a surrogate pair, and
/// the vowels and finals of Korean syllables.
bool MayCompose(QChar character) {
  return character.isMark() || character.isSurrogate() ||
         (character >= QChar(0x1161) && character <= QChar(0x11C2));
}

}  // namespace

QString FromCp1252(const std::string& text) {
  QString unicode;
  unicode.reserve(static_cast<qsizetype>(text.size()));
  for (const char byte : text) unicode += QChar(DecodeByte(byte));
  return unicode;
}

std::string ToCp1252(const QString& text) {
  std::string bytes;
  for (const char32_t character : text.toUcs4()) bytes += EncodeCharacter(character);
  return bytes;
}

QString ComposedForm(const QString& text) {
  // Composing is quadratic in the number of marks, so it gets pieces of the text. A piece that
  // consists of marks only is cut at its length.
  QString composed;
  for (qsizetype from = 0, end = 0; from < text.size(); from = end) {
    const qsizetype last = std::min(from + 2 * PieceLength, text.size());
    end = std::min(from + PieceLength, last);
    while (end < last && MayCompose(text[end])) ++end;
    composed += text.sliced(from, end - from).normalized(QString::NormalizationForm_C);
  }
  return composed;
}

bool FitsCp1252(const QString& text) {
  return FromCp1252(ToCp1252(text)) == text;
}

}  // namespace terramark::paint
