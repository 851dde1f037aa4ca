#include "pictures/fontmatch.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "pictures/textdecoding.h"

namespace terramark::pictures {
namespace {

constexpr int MaxPixelSize = 4096;
constexpr int DefaultPixelSize = 16;
constexpr double MadeItalicSlant = 0.287;  // 16 degrees
constexpr int BoldFrom = 600;

struct FaceRow {
  const char* Face;  // how the name begins
  const char* Family;
};

constexpr FaceRow Faces[] = {
    {"times", "Liberation Serif"},
    {"tms rmn", "Liberation Serif"},
    {"roman", "Liberation Serif"},
    {"symbol", "Liberation Serif"},
    {"georgia", "Liberation Serif"},
    {"garamond", "Liberation Serif"},
    {"arial narrow", "Liberation Sans Narrow"},
    {"arial", "Liberation Sans"},
    {"helv", "Liberation Sans"},
    {"swiss", "Liberation Sans"},
    {"ms sans serif", "Liberation Sans"},
    {"system", "Liberation Sans"},
    {"courier", "Liberation Mono"},
    {"fixedsys", "Liberation Mono"},
    {"terminal", "Liberation Mono"},
};

bool IsInstalled(const QString& family) {
  static const QStringList installed = QFontDatabase::families();
  return installed.contains(family, Qt::CaseInsensitive);
}

// A font of signs has no stand-in: without it, its letters are empty boxes.
QString FamilyOf(const Font& font) {
  QString own = QString::fromLatin1(font.Face);
  if (HoldsSigns(font) && IsInstalled(own)) return own;
  const QByteArray face = font.Face.toLower();
  for (const FaceRow& row : Faces) {
    if (face.startsWith(row.Face)) return QString::fromLatin1(row.Family);
  }
  constexpr int FixedPitch = 1;
  constexpr int Roman = 1;
  constexpr int Modern = 3;
  const int kind = font.PitchAndFamily >> 4;
  if ((font.PitchAndFamily & 3) == FixedPitch || kind == Modern) return "Liberation Mono";
  return kind == Roman ? "Liberation Serif" : "Liberation Sans";
}

// The font's cell for letters of 1000 pixels, from which the letters' size for a cell follows.
double CellOf(QFont font) {
  constexpr int Sample = 1000;
  font.setPixelSize(Sample);
  const QFontMetricsF metrics(font);
  return (metrics.ascent() + metrics.descent()) / Sample;
}

}  // namespace

MatchedFont MatchFont(const DeviceContext& context) {
  const Font& wanted = context.State.CurrentFont;
  const QPointF scale = context.Scale();
  MatchedFont matched;
  QFont& face = matched.Face;
  face.setFamily(FamilyOf(wanted));
  face.setStyleStrategy(QFont::NoAntialias);
  face.setHintingPreference(QFont::PreferFullHinting);
  face.setBold(wanted.Weight >= BoldFrom);
  if (wanted.Italic && HoldsSigns(wanted)) {
    matched.Slant = MadeItalicSlant;
  } else {
    face.setItalic(wanted.Italic);
  }
  face.setUnderline(wanted.Underline);
  face.setStrikeOut(wanted.StrikeOut);
  face.setKerning(false);

  const double height = std::floor(std::abs(wanted.Height * scale.y()) + 0.5);
  double size = wanted.Height > 0 ? std::floor(height / CellOf(face) + 0.5) : height;
  if (wanted.Height == 0) size = DefaultPixelSize;
  face.setPixelSize(static_cast<int>(std::clamp(size, 1.0, double{MaxPixelSize})));

  const QFontMetricsF metrics(face);
  matched.Ascent = static_cast<int>(std::lround(metrics.ascent()));
  matched.Descent = static_cast<int>(std::lround(metrics.descent()));
  if (wanted.Width != 0 && metrics.averageCharWidth() > 0) {
    const double width = std::abs(wanted.Width * scale.x());
    matched.Stretch = std::clamp(width / metrics.averageCharWidth(), 0.05, 50.0);
  }
  return matched;
}

}  // namespace terramark::pictures
