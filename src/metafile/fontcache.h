// The fonts that a metafile has used lately, with their letters: to find one takes many times
// longer than to draw it.
#pragma once

#include <QByteArrayView>
#include <QGlyphRun>
#include <QList>
#include <QPointF>
#include <list>
#include <unordered_map>

#include "metafile/fontmatch.h"
#include "metafile/surface.h"

namespace terramark::metafile {

/// A letter as its font draws it, the baseline starting at the origin.
struct LetterShape {
  QList<QGlyphRun> Runs;  // none where no font has the letter
  int Advance = 0;        // pixels, before the font's Stretch
  bool Blank = false;     // the space that justified text stretches
};

/// A font and those of its letters that were asked for.
class CachedFont {
 public:
  CachedFont(const Font& wanted, QPointF scale)
      : Wanted(wanted), Scale(scale), Match(MatchFont(wanted, scale)) {}

  Font Wanted;
  QPointF Scale;
  MatchedFont Match;

  /// Of the bytes of one letter. `target` is charged for one that was not asked for before.
  const LetterShape& ShapeOf(QByteArrayView letter, Surface& target);

 private:
  LetterShape NewShape(QByteArrayView letter, Surface& target);

  bool searched_ = false;  // whether other fonts were looked through
  std::unordered_map<unsigned, LetterShape> letters_;
};

class FontCache {
 public:
  /// As MatchFont. `target` is charged for one that is not kept. It stands until the next call.
  CachedFont& Find(Font wanted, QPointF scale, Surface& target);

 private:
  std::list<CachedFont> fonts_;
};

}  // namespace terramark::metafile
