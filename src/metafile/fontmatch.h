// Finds the screen font for a metafile's font: a family of the same letter widths, its size in
// pixels, and drawn without grey edges.
#pragma once

#include <QFont>
#include <QPointF>
#include <optional>

#include "metafile/graphicsobjects.h"

namespace terramark::metafile {

/// What a font holds: letters; the signs of the symbol font; or signs of its own, known by nothing
/// but its name.
enum class FontContents { Letters, Symbols, PrivateSymbols };
FontContents ContentsOf(const Font& font);

/// Fonts of signs keep them from here on.
constexpr char16_t PrivateUseStart = 0xF000;

/// A font that keeps its signs by their byte.
struct SymbolFont {
  QFont Face;
  char16_t From = 0;  // where byte 0 is
};

struct MatchedFont {
  QFont Face;
  /// For a font of signs: the one to try first.
  std::optional<SymbolFont> Signs;
  int Ascent = 0;   // pixels
  int Descent = 0;  // pixels
  /// How much wider than its own proportion the font is to be drawn.
  double Stretch = 1;
  /// How far each pixel of height leans right, for a font that has no italic of its own.
  double Slant = 0;
};

/// How many families of fonts the system has.
qsizetype FamilyCount();

/// The font for `wanted` at so many pixels per logical unit. One of the families that are expected
/// is named even when it is not installed; the size is 1 to MaxLetterSize pixels.
MatchedFont MatchFont(const Font& wanted, QPointF scale);

}  // namespace terramark::metafile
