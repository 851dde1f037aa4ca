#include "metafile/fontcache.h"

#include <QFontMetrics>
#include <QTextLayout>
#include <algorithm>

#include "metafile/limits.h"
#include "metafile/symbolencoding.h"
#include "metafile/textdecoding.h"

namespace terramark::metafile {
namespace {

/// No runs where the font would draw its box for missing letters.
QList<QGlyphRun> RunsOf(const QFont& font, const QString& text) {
  QTextLayout layout(text, font);
  layout.beginLayout();
  const QTextLine line = layout.createLine();
  layout.endLayout();
  QList<QGlyphRun> runs = layout.glyphRuns();
  for (QGlyphRun& run : runs) {
    if (run.glyphIndexes().contains(0)) return {};
    QList<QPointF> positions = run.positions();
    for (QPointF& position : positions) position.ry() -= line.ascent();
    run.setPositions(positions);
  }
  return runs;
}

}  // namespace

const LetterShape& CachedFont::ShapeOf(QByteArrayView letter, Budget& budget) {
  unsigned bytes = 0;
  for (const char byte : letter) bytes = bytes << 8 | static_cast<unsigned char>(byte);
  const auto known = letters_.find(bytes);
  if (known != letters_.end()) return known->second;
  budget.SpendCall();
  return letters_.emplace(bytes, NewShape(letter)).first->second;
}

LetterShape CachedFont::NewShape(QByteArrayView letter) {
  const QString text = DecodeLetter(letter, Wanted);
  LetterShape shape{.Runs = {}, .Advance = 0, .Blank = letter == QByteArrayView(" ")};
  const auto take = [&shape](const QFont& face, const QString& as) {
    shape.Runs = RunsOf(face, as);
    shape.Advance = QFontMetrics(face).horizontalAdvance(as);
    return !shape.Runs.isEmpty();
  };
  if (text != QString(QChar::ReplacementCharacter)) {
    const FontContents contents = ContentsOf(Wanted);
    if (Match.Signs) {
      const int sign = Match.Signs->From + static_cast<unsigned char>(letter[0]);
      if (take(Match.Signs->Face, QString(QChar(sign)))) return shape;
    }
    if (contents != FontContents::PrivateSymbols && take(Match.Face, text)) return shape;
    if (contents == FontContents::Symbols) {
      const char16_t plainer = PlainerLetter(text[0].unicode());
      if (plainer != 0 && take(Match.Face, QString(QChar(plainer)))) return shape;
    }
  }
  // Letters of two bytes are as wide as they are high.
  shape.Advance =
      letter.size() > 1 ? Match.Face.pixelSize() : QFontMetrics(Match.Face).horizontalAdvance(text);
  return shape;
}

CachedFont& FontCache::Find(Font wanted, QPointF scale, Budget& budget) {
  wanted.Escapement = 0;  // the letters are turned when they are drawn
  budget.Spend(std::ssize(fonts_));
  const auto kept = std::find_if(fonts_.begin(), fonts_.end(), [&](const CachedFont& font) {
    return font.Scale == scale && font.Wanted == wanted;
  });
  if (kept != fonts_.end()) return *kept;
  budget.SpendCall();
  if (fonts_.size() == MaxCachedFonts) fonts_.clear();
  return fonts_.emplace_back(wanted, scale);
}

}  // namespace terramark::metafile
