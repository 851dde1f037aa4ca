// The fonts that a metafile has used lately, with their letters: finding a font takes much longer
// than drawing with it.
#pragma once

#include <QByteArrayView>
#include <QGlyphRun>
#include <QList>
#include <QPointF>
#include <list>
#include <unordered_map>

#include "metafile/budget.h"
#include "metafile/fontmatch.h"

namespace terramark::metafile {

/// A letter as its font draws it. The baseline starts at the origin.
struct LetterShape {
  QList<QGlyphRun> Runs;  // none where no font has the letter
  int Advance = 0;        // pixels, before the font's Stretch
  bool Blank = false;     // the space that justified text stretches
};

/// A font and its letters that have been used.
class CachedFont {
 public:
  CachedFont(const Font& wanted, QPointF scale)
      : Wanted(wanted), Scale(scale), Match(MatchFont(wanted, scale)) {}

  Font Wanted;
  QPointF Scale;
  MatchedFont Match;

  /// The letter of one or two bytes. The clock is asked for one that is not in the cache.
  const LetterShape& ShapeOf(QByteArrayView letter, Budget& budget);

 private:
  LetterShape NewShape(QByteArrayView letter);

  std::unordered_map<unsigned, LetterShape> letters_;
};

class FontCache {
 public:
  /// As MatchFont. The clock is asked for one that is not in the cache. The result is valid
  /// until the next call.
  CachedFont& Find(Font wanted, QPointF scale, Budget& budget);

 private:
  std::list<CachedFont> fonts_;
};

}  // namespace terramark::metafile
