#include "metafile/fontcache.h"

#include <QFontMetrics>
#include <QRawFont>
#include <QTextLayout>
#include <algorithm>

#include "metafile/limits.h"
#include "metafile/symbolencoding.h"
#include "metafile/textdecoding.h"

namespace terramark::metafile {
namespace {

constexpr std::int64_t WorkPerFont = 100'000;
// For the first letter that a font lacks the system searches all installed families.
constexpr std::int64_t WorkPerOtherFamily = 10'000;
constexpr std::int64_t WorkPerSearch = 500;
constexpr std::int64_t WorkPerShape = 20'000;

bool HasAll(const QFont& font, const QString& text) {
  const QRawFont raw = QRawFont::fromFont(font);
  return std::all_of(text.begin(), text.end(),
                     [&raw](QChar letter) { return raw.supportsCharacter(letter); });
}

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

const LetterShape& CachedFont::ShapeOf(QByteArrayView letter, Surface& target) {
  unsigned bytes = 0;
  for (const char byte : letter) bytes = bytes << 8 | static_cast<unsigned char>(byte);
  const auto known = letters_.find(bytes);
  if (known != letters_.end()) return known->second;
  target.ChargeWork(WorkPerShape);
  return letters_.emplace(bytes, NewShape(letter, target)).first->second;
}

LetterShape CachedFont::NewShape(QByteArrayView letter, Surface& target) {
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
    const bool others = contents != FontContents::PrivateSymbols && !HasAll(Match.Face, text);
    if (others && !searched_) {
      target.ChargeWork(WorkPerOtherFamily * FamilyCount());
      searched_ = true;
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

CachedFont& FontCache::Find(Font wanted, QPointF scale, Surface& target) {
  wanted.Escapement = 0;  // the letters are turned when they are drawn
  target.ChargeWork(WorkPerSearch);
  const auto kept = std::find_if(fonts_.begin(), fonts_.end(), [&](const CachedFont& font) {
    return font.Scale == scale && font.Wanted == wanted;
  });
  if (kept != fonts_.end()) return *kept;
  target.ChargeWork(WorkPerFont);
  if (fonts_.size() == MaxCachedFonts) fonts_.clear();
  return fonts_.emplace_back(wanted, scale);
}

}  // namespace terramark::metafile
