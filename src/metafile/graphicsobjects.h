// The objects that a metafile creates, selects and deletes by number: pens, brushes, fonts,
// palettes and regions.
#pragma once

#include <QByteArray>
#include <QRect>
#include <QRgb>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>
#include <variant>
#include <vector>

#include "forms/raster.h"

namespace terramark::metafile {

/// 0x00BBGGRR, or the index of a palette's entry when the top byte is 1. It is resolved when it is
/// used.
using ColourRef = std::uint32_t;
constexpr ColourRef WhiteRef = 0xFFFFFF;

enum class PenStyle { Solid = 0, Dash, Dot, DashDot, DashDotDot, None, InsideFrame };

struct Pen {
  PenStyle Style = PenStyle::Solid;
  int Width = 0;  // logical units; anything below a pixel draws as one
  ColourRef Colour = 0;
};

constexpr int LastHatch = 5;

enum class BrushStyle { Solid = 0, None = 1, Hatched = 2, Pattern = 3 };

struct Brush {
  BrushStyle Style = BrushStyle::Solid;
  ColourRef Colour = WhiteRef;
  int Hatch = 0;        // 0 to 5: horizontal, vertical, the two diagonals, cross, diagonal cross
  forms::Picture Tile;  // of a pattern
};

struct Font {
  int Height = 0;      // logical units: of the cell, or of the letters alone when negative
  int Width = 0;       // logical units of an average letter; 0 keeps the font's own proportion
  int Escapement = 0;  // tenths of a degree against the clock
  int Weight = 400;    // 400 is normal, 700 bold
  bool Italic = false;
  bool Underline = false;
  bool StrikeOut = false;
  int Charset = 0;         // the format's number, 0 to 255
  int PitchAndFamily = 0;  // bits 0 and 1: fixed pitch is 1; bits 4 to 7: the family
  QByteArray Face;         // at most 32 bytes

  bool operator==(const Font&) const = default;
};

/// A palette. Its entries are copied before a change while other palettes share them, so that
/// selecting and saving one costs nothing.
class Palette {
 public:
  Palette() = default;
  /// MaxPaletteEntries at most, opaque.
  explicit Palette(std::vector<QRgb> entries)
      : entries_(std::make_shared<std::vector<QRgb>>(std::move(entries))) {}

  std::span<const QRgb> Entries() const {
    return entries_ ? std::span<const QRgb>(*entries_) : std::span<const QRgb>();
  }
  /// The entries, to be changed in this palette alone.
  std::span<QRgb> OwnEntries() {
    if (entries_.use_count() > 1) entries_ = std::make_shared<std::vector<QRgb>>(*entries_);
    return entries_ ? std::span<QRgb>(*entries_) : std::span<QRgb>();
  }

 private:
  std::shared_ptr<std::vector<QRgb>> entries_;
};

struct RegionObject {
  std::vector<QRect> Rects;  // logical where they are painted, pixels where they clip
};

/// An object whose creation failed. It keeps its number; selecting it changes nothing.
struct Unusable {};

using GraphicsObject =
    std::variant<std::monostate, Pen, Brush, Font, Palette, RegionObject, Unusable>;

/// The objects by number. A new one takes the lowest free number.
class ObjectTable {
 public:
  /// Returns how many slots were searched for a free one. Beyond MaxObjects a new object is
  /// dropped.
  std::size_t Add(GraphicsObject object);
  /// A number without an object is ignored.
  void Delete(std::size_t number);
  /// Monostate for a number without an object.
  const GraphicsObject& At(std::size_t number) const;

 private:
  std::vector<GraphicsObject> slots_;
  std::size_t lowestFree_ = 0;
};

}  // namespace terramark::metafile
