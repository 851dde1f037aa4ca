// The numbers of the 16-bit metafile format by their usual names: the kinds of records that are
// played, and those values of their fields that matter.
#pragma once

#include <cstdint>

namespace terramark::metafile {

/// The function number of a record. A file may contain any other number; such a record is ignored.
enum class RecordKind : std::uint16_t {
  End = 0x0000,
  SaveDC = 0x001E,
  SetPaletteEntries = 0x0037,
  CreatePalette = 0x00F7,
  SetBkMode = 0x0102,
  SetMapMode = 0x0103,
  SetRop2 = 0x0104,
  SetPolyFillMode = 0x0106,
  SetStretchBltMode = 0x0107,
  SetTextCharExtra = 0x0108,
  RestoreDC = 0x0127,
  InvertRegion = 0x012A,
  PaintRegion = 0x012B,
  SelectClipRegion = 0x012C,
  SelectObject = 0x012D,
  SetTextAlign = 0x012E,
  DibCreatePatternBrush = 0x0142,
  DeleteObject = 0x01F0,
  CreatePatternBrush = 0x01F9,
  SetBkColor = 0x0201,
  SetTextColor = 0x0209,
  SetTextJustification = 0x020A,
  SetWindowOrg = 0x020B,
  SetWindowExt = 0x020C,
  SetViewportOrg = 0x020D,
  SetViewportExt = 0x020E,
  OffsetWindowOrg = 0x020F,
  OffsetViewportOrg = 0x0211,
  LineTo = 0x0213,
  MoveTo = 0x0214,
  OffsetClipRgn = 0x0220,
  FillRegion = 0x0228,
  SelectPalette = 0x0234,
  CreatePenIndirect = 0x02FA,
  CreateFontIndirect = 0x02FB,
  CreateBrushIndirect = 0x02FC,
  Polygon = 0x0324,
  Polyline = 0x0325,
  ScaleWindowExt = 0x0410,
  ScaleViewportExt = 0x0412,
  ExcludeClipRect = 0x0415,
  IntersectClipRect = 0x0416,
  Ellipse = 0x0418,
  FloodFill = 0x0419,
  Rectangle = 0x041B,
  SetPixel = 0x041F,
  FrameRegion = 0x0429,
  AnimatePalette = 0x0436,
  TextOut = 0x0521,
  PolyPolygon = 0x0538,
  ExtFloodFill = 0x0548,
  RoundRect = 0x061C,
  PatBlt = 0x061D,
  CreateRegion = 0x06FF,
  Arc = 0x0817,
  Pie = 0x081A,
  Chord = 0x0830,
  BitBlt = 0x0922,
  DibBitBlt = 0x0940,
  ExtTextOut = 0x0A32,
  StretchBlt = 0x0B23,
  DibStretchBlt = 0x0B41,
  SetDibToDevice = 0x0D33,
  StretchDib = 0x0F43,
};

/// Of SetBkMode: the gaps in lines, hatches and text are not painted.
constexpr int TransparentBackground = 1;

/// Of SetMapMode: in the modes from this to TwipsMode units are lengths and y points upwards.
constexpr int LoMetricMode = 2;
constexpr int TwipsMode = 6;

/// Of SetROP2: how pen and brush are combined with the destination, 1 to 16.
constexpr int FirstOperation = 1;
constexpr int InvertOperation = 6;
constexpr int CopyOperation = 13;
constexpr int LastOperation = 16;

/// Of SetPolyFillMode.
constexpr int WindingFill = 2;

/// Of SetStretchBltMode: how several pixels that become one are combined.
constexpr int StretchAnd = 1;
constexpr int StretchOr = 2;

/// Of SetTextAlign: a bit, and two fields of bits for the horizontal and the vertical place.
constexpr int AlignUpdate = 1;
constexpr int AlignSideways = 6;
constexpr int AlignRight = 2;
constexpr int AlignCentre = 6;
constexpr int AlignUpright = 24;
constexpr int AlignBottom = 8;
constexpr int AlignBaseline = 24;

/// Of ExtTextOut: bits.
constexpr int TextOpaque = 2;
constexpr int TextClipped = 4;
constexpr int TextGlyphs = 0x10;

/// Of ExtFloodFill: the given colour is that of the border, not of the area.
constexpr int FloodToBorder = 0;

/// Of the blits: the ternary operation that copies the bitmap.
constexpr int SourceCopy = 0xCC;

/// Of the records with a bitmap: its colour table contains numbers of the palette's entries.
constexpr int PaletteColours = 1;

}  // namespace terramark::metafile
