// Finds the screen font for a metafile's font: a family with the same letter widths, in a size in
// pixels, with smooth edges at the sizes at which the font asks for them.
#pragma once

#include <QFont>
#include <QPointF>
#include <optional>

#include "metafile/graphicsobjects.h"

namespace terramark::metafile {

/// What a font contains: letters; the symbols of the symbol font; or symbols of its own, which only
/// the face's name identifies.
enum class FontContents { Letters, Symbols, PrivateSymbols };
FontContents ContentsOf(const Font& font);

/// Fonts of symbols map byte 0 to this character of the private use area.
constexpr char16_t PrivateUseStart = 0xF000;

/// A font that maps bytes to symbols.
struct SymbolFont {
  QFont Face;
  char16_t From = 0;  // where byte 0 is
};

struct MatchedFont {
  QFont Face;
  /// For a font of symbols: the one to try first.
  std::optional<SymbolFont> Signs;
  int Ascent = 0;   // pixels
  int Descent = 0;  // pixels
  /// The factor by which the letters are drawn wider than the font has them.
  double Stretch = 1;
  /// By how much each pixel of height leans to the right, for a font without an italic face.
  double Slant = 0;
};

/// The font for `wanted`, with the scale in pixels per logical unit. It may name a family that is
/// not installed. Its size is 1 to MaxLetterSize pixels.
MatchedFont MatchFont(const Font& wanted, QPointF scale);

}  // namespace terramark::metafile
