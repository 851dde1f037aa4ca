#include "metafile/fontmatch.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QRawFont>
#include <QStringList>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <cstdint>

#include "metafile/limits.h"

namespace terramark::metafile {
namespace {

constexpr int DefaultPixelSize = 16;
constexpr double SyntheticSlant = 0.287;  // 16 degrees
constexpr int BoldFrom = 600;
constexpr int SymbolCharset = 2;

double ClampSize(double size) {
  return std::clamp(size, 1.0, double{MaxLetterSize});
}

struct FaceRow {
  const char* Face;  // how the name begins
  const char* Family;
};

constexpr FaceRow Faces[] = {
    {"times", "Liberation Serif"},    {"tms rmn", "Liberation Serif"},
    {"roman", "Liberation Serif"},    {"georgia", "Liberation Serif"},
    {"garamond", "Liberation Serif"}, {"arial narrow", "Liberation Sans Narrow"},
    {"arial", "Liberation Sans"},     {"helv", "Liberation Sans"},
    {"swiss", "Liberation Sans"},     {"ms sans serif", "Liberation Sans"},
    {"system", "Liberation Sans"},    {"courier", "Liberation Mono"},
    {"fixedsys", "Liberation Mono"},  {"terminal", "Liberation Mono"},
};

/// The substitute for one of the usual faces, which is given in lower case; null for any other
/// face.
const char* SubstituteFor(const QByteArray& face) {
  for (const FaceRow& row : Faces) {
    if (face.startsWith(row.Face)) return row.Family;
  }
  return nullptr;
}

/// The faces that the families stand in for, which Windows has instead, and the mean widths of
/// their letters for a size of one pixel. A metafile's width is a multiple of the widths that these
/// faces state. Our families have the same letters but count other ones too, so their own mean is
/// larger.
struct FamilyRow {
  const char* Family;
  const char* StandsFor;
  double Regular;
  double Bold;
};

constexpr FamilyRow FamilyRows[] = {
    {"Liberation Sans", "Arial", 0.441, 0.480},
    {"Liberation Serif", "Times New Roman", 0.401, 0.427},
    {"Liberation Mono", "Courier New", 0.600, 0.600},
    {"Liberation Sans Narrow", "Arial Narrow", 0.362, 0.392},
};

/// Null for a family that is in neither column.
const FamilyRow* RowOf(const QString& family) {
  for (const FamilyRow& row : FamilyRows) {
    if (family == QLatin1StringView(row.Family) || family == QLatin1StringView(row.StandsFor)) {
      return &row;
    }
  }
  return nullptr;
}

/// The family, or the face that it stands in for where that alone is installed.
QString InstalledOf(const QString& family) {
  static const QStringList installed = QFontDatabase::families();
  const FamilyRow* const row = RowOf(family);
  if (row == nullptr || installed.contains(family)) return family;
  const QString face = QString::fromLatin1(row->StandsFor);
  return installed.contains(face) ? face : family;
}

double MeanWidthOf(const QFont& face) {
  const FamilyRow* const row = RowOf(face.family());
  if (row == nullptr) return 0;
  return face.bold() ? row->Bold : row->Regular;
}

/// The metrics of the symbol font, for a size of one pixel.
constexpr double SymbolAscent = 1.005;
constexpr double SymbolDescent = 0.220;
constexpr double SymbolWidth = 0.5755;

const QStringList& FamilyNames() {
  static const QStringList families = QFontDatabase::families();
  return families;
}

bool IsInstalled(const QString& family) {
  return FamilyNames().contains(family, Qt::CaseInsensitive);
}

QString FamilyOf(const Font& font) {
  if (ContentsOf(font) == FontContents::Symbols) return "Liberation Serif";
  if (const char* family = SubstituteFor(font.Face.toLower())) return QString::fromLatin1(family);
  constexpr int FixedPitch = 1;
  constexpr int Roman = 1;
  constexpr int Modern = 3;
  const int kind = font.PitchAndFamily >> 4;
  if ((font.PitchAndFamily & 3) == FixedPitch || kind == Modern) return "Liberation Mono";
  return kind == Roman ? "Liberation Serif" : "Liberation Sans";
}

/// The wanted font itself or, for symbols, a free font with the same encoding that Qt reads as
/// Western.
std::optional<SymbolFont> SignsOf(const Font& wanted, QFont face) {
  const FontContents contents = ContentsOf(wanted);
  if (contents == FontContents::Letters) return std::nullopt;
  face.setStyleStrategy(QFont::StyleStrategy(face.styleStrategy() | QFont::NoFontMerging));
  const QString own = QString::fromLatin1(wanted.Face);
  if (IsInstalled(own)) {
    face.setFamily(own);
    return SymbolFont{.Face = face, .From = PrivateUseStart};
  }
  if (contents == FontContents::PrivateSymbols) return std::nullopt;
  for (const QString& family : FamilyNames()) {
    if (!family.startsWith("Standard Symbols")) continue;
    face.setFamily(family);
    return SymbolFont{.Face = face, .From = 0};
  }
  return std::nullopt;
}

/// The ascent, descent and mean width of the letters of a size in pixels.
struct EmMetrics {
  int Ascent = 0;
  int Descent = 0;
  double Width = 0;
};

EmMetrics EmMetricsOf(QFont face, FontContents contents, double size) {
  if (contents == FontContents::Symbols) {
    return {.Ascent = static_cast<int>(std::lround(SymbolAscent * size)),
            .Descent = static_cast<int>(std::lround(SymbolDescent * size)),
            .Width = SymbolWidth * size};
  }
  face.setPixelSize(static_cast<int>(size));
  const QFontMetricsF metrics(face);
  return {.Ascent = static_cast<int>(std::lround(metrics.ascent())),
          .Descent = static_cast<int>(std::lround(metrics.descent())),
          .Width = MeanWidthOf(face) * size};
}

/// The height of the font's cell for a size of one pixel.
double CellHeightPerEm(QFont face, FontContents contents) {
  if (contents == FontContents::Symbols) return SymbolAscent + SymbolDescent;
  constexpr int Sample = 1000;
  face.setPixelSize(Sample);
  const QFontMetricsF metrics(face);
  return (metrics.ascent() + metrics.descent()) / Sample;
}

/// The nearest size, or one less where its rounded cell would be too high.
double EmSizeFor(double height, double cell) {
  const double size = std::floor(height / cell + 0.5);
  return std::floor(size * cell + 0.5) > height ? size - 1 : size;
}

/// Whether the font's gasp table, whose rows have a largest size and what is done up to it, asks
/// for smooth edges at the size of `face`.
bool AsksForSmoothing(const QFont& face) {
  constexpr int SmoothBit = 2;
  constexpr qsizetype RowBytes = 4;
  const QByteArray table = QRawFont::fromFont(face).fontTable("gasp");
  const auto word = [&table](qsizetype at) {
    return at + 2 <= table.size() ? qFromBigEndian<std::uint16_t>(table.constData() + at) : 0;
  };
  for (qsizetype row = RowBytes; row < table.size(); row += RowBytes) {
    if (face.pixelSize() <= word(row)) return (word(row + 2) & SmoothBit) != 0;
  }
  return false;
}

}  // namespace

FontContents ContentsOf(const Font& font) {
  const QByteArray face = font.Face.toLower();
  if (face.startsWith("symbol")) return FontContents::Symbols;
  if (font.Charset != SymbolCharset) return FontContents::Letters;
  // A face that is known for letters has no symbols: the symbol font is used instead.
  const bool symbols = face.isEmpty() || face.contains("symbol") || SubstituteFor(face) != nullptr;
  return symbols ? FontContents::Symbols : FontContents::PrivateSymbols;
}

MatchedFont MatchFont(const Font& wanted, QPointF scale) {
  const FontContents contents = ContentsOf(wanted);
  MatchedFont matched;
  QFont& face = matched.Face;
  face.setFamily(InstalledOf(FamilyOf(wanted)));
  face.setStyleStrategy(QFont::NoAntialias);
  face.setHintingPreference(QFont::PreferFullHinting);
  face.setBold(wanted.Weight >= BoldFrom);
  if (wanted.Italic && contents != FontContents::Letters) {
    matched.Slant = SyntheticSlant;
  } else {
    face.setItalic(wanted.Italic);
  }
  face.setUnderline(wanted.Underline);
  face.setStrikeOut(wanted.StrikeOut);
  face.setKerning(false);

  const double height = std::floor(std::abs(wanted.Height * scale.y()) + 0.5);
  double size = wanted.Height > 0 ? EmSizeFor(height, CellHeightPerEm(face, contents)) : height;
  if (wanted.Height == 0) size = DefaultPixelSize;
  size = ClampSize(size);
  face.setPixelSize(static_cast<int>(size));
  if (AsksForSmoothing(face)) {
    // In shades of one colour, whatever the desktop's setting for its own text.
    face.setStyleStrategy(
        QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  }
  matched.Signs = SignsOf(wanted, face);

  const EmMetrics measures = EmMetricsOf(face, contents, size);
  matched.Ascent = measures.Ascent;
  matched.Descent = measures.Descent;
  if (wanted.Width != 0 && measures.Width > 0) {
    const double width = std::abs(wanted.Width * scale.x());
    matched.Stretch = std::clamp(width / measures.Width, 0.05, 50.0);
  }
  return matched;
}

}  // namespace terramark::metafile
