// Stands in for the table of the same name in src/metafile/, and goes when that comes.
#pragma once

#include "pictures/metafilerecords.h"

namespace terramark::pictures {

struct RecordRow {
  RecordKind Kind;
  const char* Name;
};

// clang-format off
constexpr RecordRow Records[] = {
    {RecordKind::SaveDC, "SaveDC"},
    {RecordKind::SetPaletteEntries, "SetPaletteEntries"},
    {RecordKind::CreatePalette, "CreatePalette"},
    {RecordKind::SetBkMode, "SetBkMode"},
    {RecordKind::SetMapMode, "SetMapMode"},
    {RecordKind::SetRop2, "SetRop2"},
    {RecordKind::SetPolyFillMode, "SetPolyFillMode"},
    {RecordKind::SetStretchBltMode, "SetStretchBltMode"},
    {RecordKind::SetTextCharExtra, "SetTextCharExtra"},
    {RecordKind::RestoreDC, "RestoreDC"},
    {RecordKind::InvertRegion, "InvertRegion"},
    {RecordKind::PaintRegion, "PaintRegion"},
    {RecordKind::SelectClipRegion, "SelectClipRegion"},
    {RecordKind::SelectObject, "SelectObject"},
    {RecordKind::SetTextAlign, "SetTextAlign"},
    {RecordKind::DibCreatePatternBrush, "DibCreatePatternBrush"},
    {RecordKind::DeleteObject, "DeleteObject"},
    {RecordKind::CreatePatternBrush, "CreatePatternBrush"},
    {RecordKind::SetBkColor, "SetBkColor"},
    {RecordKind::SetTextColor, "SetTextColor"},
    {RecordKind::SetTextJustification, "SetTextJustification"},
    {RecordKind::SetWindowOrg, "SetWindowOrg"},
    {RecordKind::SetWindowExt, "SetWindowExt"},
    {RecordKind::SetViewportOrg, "SetViewportOrg"},
    {RecordKind::SetViewportExt, "SetViewportExt"},
    {RecordKind::OffsetWindowOrg, "OffsetWindowOrg"},
    {RecordKind::OffsetViewportOrg, "OffsetViewportOrg"},
    {RecordKind::LineTo, "LineTo"},
    {RecordKind::MoveTo, "MoveTo"},
    {RecordKind::OffsetClipRgn, "OffsetClipRgn"},
    {RecordKind::FillRegion, "FillRegion"},
    {RecordKind::SelectPalette, "SelectPalette"},
    {RecordKind::CreatePenIndirect, "CreatePenIndirect"},
    {RecordKind::CreateFontIndirect, "CreateFontIndirect"},
    {RecordKind::CreateBrushIndirect, "CreateBrushIndirect"},
    {RecordKind::Polygon, "Polygon"},
    {RecordKind::Polyline, "Polyline"},
    {RecordKind::ScaleWindowExt, "ScaleWindowExt"},
    {RecordKind::ScaleViewportExt, "ScaleViewportExt"},
    {RecordKind::ExcludeClipRect, "ExcludeClipRect"},
    {RecordKind::IntersectClipRect, "IntersectClipRect"},
    {RecordKind::Ellipse, "Ellipse"},
    {RecordKind::FloodFill, "FloodFill"},
    {RecordKind::Rectangle, "Rectangle"},
    {RecordKind::SetPixel, "SetPixel"},
    {RecordKind::FrameRegion, "FrameRegion"},
    {RecordKind::AnimatePalette, "AnimatePalette"},
    {RecordKind::TextOut, "TextOut"},
    {RecordKind::PolyPolygon, "PolyPolygon"},
    {RecordKind::ExtFloodFill, "ExtFloodFill"},
    {RecordKind::RoundRect, "RoundRect"},
    {RecordKind::PatBlt, "PatBlt"},
    {RecordKind::CreateRegion, "CreateRegion"},
    {RecordKind::Arc, "Arc"},
    {RecordKind::Pie, "Pie"},
    {RecordKind::Chord, "Chord"},
    {RecordKind::BitBlt, "BitBlt"},
    {RecordKind::DibBitBlt, "DibBitBlt"},
    {RecordKind::ExtTextOut, "ExtTextOut"},
    {RecordKind::StretchBlt, "StretchBlt"},
    {RecordKind::DibStretchBlt, "DibStretchBlt"},
    {RecordKind::SetDibToDevice, "SetDibToDevice"},
    {RecordKind::StretchDib, "StretchDib"},
};
// clang-format on

}  // namespace terramark::pictures
