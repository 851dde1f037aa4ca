// The table of the records that are played.
#pragma once

#include <algorithm>
#include <array>
#include <functional>

#include "metafile/recordplayers.h"

namespace terramark::metafile {

struct RecordRow {
  RecordKind Kind;
  const char* Name;
  RecordPlayer* Player;
};

/// A row for each kind, in the order of their numbers.
inline constexpr auto Records = std::to_array<RecordRow>({
    {RecordKind::SaveDC, "SaveDC", PlaySaveDC},
    {RecordKind::SetPaletteEntries, "SetPaletteEntries", PlaySetPaletteEntries},
    {RecordKind::CreatePalette, "CreatePalette", PlayCreatePalette},
    {RecordKind::SetBkMode, "SetBkMode", PlaySetBkMode},
    {RecordKind::SetMapMode, "SetMapMode", PlaySetMapMode},
    {RecordKind::SetRop2, "SetRop2", PlaySetRop2},
    {RecordKind::SetPolyFillMode, "SetPolyFillMode", PlaySetPolyFillMode},
    {RecordKind::SetStretchBltMode, "SetStretchBltMode", PlaySetStretchBltMode},
    {RecordKind::SetTextCharExtra, "SetTextCharExtra", PlaySetTextCharExtra},
    {RecordKind::RestoreDC, "RestoreDC", PlayRestoreDC},
    {RecordKind::InvertRegion, "InvertRegion", PlayInvertRegion},
    {RecordKind::PaintRegion, "PaintRegion", PlayPaintRegion},
    {RecordKind::SelectClipRegion, "SelectClipRegion", PlaySelectClipRegion},
    {RecordKind::SelectObject, "SelectObject", PlaySelectObject},
    {RecordKind::SetTextAlign, "SetTextAlign", PlaySetTextAlign},
    {RecordKind::DibCreatePatternBrush, "DibCreatePatternBrush", PlayDibCreatePatternBrush},
    {RecordKind::DeleteObject, "DeleteObject", PlayDeleteObject},
    {RecordKind::CreatePatternBrush, "CreatePatternBrush", PlayCreatePatternBrush},
    {RecordKind::SetBkColor, "SetBkColor", PlaySetBkColor},
    {RecordKind::SetTextColor, "SetTextColor", PlaySetTextColor},
    {RecordKind::SetTextJustification, "SetTextJustification", PlaySetTextJustification},
    {RecordKind::SetWindowOrg, "SetWindowOrg", PlaySetWindowOrg},
    {RecordKind::SetWindowExt, "SetWindowExt", PlaySetWindowExt},
    {RecordKind::SetViewportOrg, "SetViewportOrg", PlaySetViewportOrg},
    {RecordKind::SetViewportExt, "SetViewportExt", PlaySetViewportExt},
    {RecordKind::OffsetWindowOrg, "OffsetWindowOrg", PlayOffsetWindowOrg},
    {RecordKind::OffsetViewportOrg, "OffsetViewportOrg", PlayOffsetViewportOrg},
    {RecordKind::LineTo, "LineTo", PlayLineTo},
    {RecordKind::MoveTo, "MoveTo", PlayMoveTo},
    {RecordKind::OffsetClipRgn, "OffsetClipRgn", PlayOffsetClipRgn},
    {RecordKind::FillRegion, "FillRegion", PlayFillRegion},
    {RecordKind::SelectPalette, "SelectPalette", PlaySelectPalette},
    {RecordKind::CreatePenIndirect, "CreatePenIndirect", PlayCreatePenIndirect},
    {RecordKind::CreateFontIndirect, "CreateFontIndirect", PlayCreateFontIndirect},
    {RecordKind::CreateBrushIndirect, "CreateBrushIndirect", PlayCreateBrushIndirect},
    {RecordKind::Polygon, "Polygon", PlayPolygon},
    {RecordKind::Polyline, "Polyline", PlayPolyline},
    {RecordKind::ScaleWindowExt, "ScaleWindowExt", PlayScaleWindowExt},
    {RecordKind::ScaleViewportExt, "ScaleViewportExt", PlayScaleViewportExt},
    {RecordKind::ExcludeClipRect, "ExcludeClipRect", PlayExcludeClipRect},
    {RecordKind::IntersectClipRect, "IntersectClipRect", PlayIntersectClipRect},
    {RecordKind::Ellipse, "Ellipse", PlayEllipse},
    {RecordKind::FloodFill, "FloodFill", PlayFloodFill},
    {RecordKind::Rectangle, "Rectangle", PlayRectangle},
    {RecordKind::SetPixel, "SetPixel", PlaySetPixel},
    {RecordKind::FrameRegion, "FrameRegion", PlayFrameRegion},
    {RecordKind::AnimatePalette, "AnimatePalette", PlaySetPaletteEntries},
    {RecordKind::TextOut, "TextOut", PlayTextOut},
    {RecordKind::PolyPolygon, "PolyPolygon", PlayPolyPolygon},
    {RecordKind::ExtFloodFill, "ExtFloodFill", PlayExtFloodFill},
    {RecordKind::RoundRect, "RoundRect", PlayRoundRect},
    {RecordKind::PatBlt, "PatBlt", PlayPatBlt},
    {RecordKind::CreateRegion, "CreateRegion", PlayCreateRegion},
    {RecordKind::Arc, "Arc", PlayArc},
    {RecordKind::Pie, "Pie", PlayPie},
    {RecordKind::Chord, "Chord", PlayChord},
    {RecordKind::BitBlt, "BitBlt", PlayBitBlt},
    {RecordKind::DibBitBlt, "DibBitBlt", PlayDibBitBlt},
    {RecordKind::ExtTextOut, "ExtTextOut", PlayExtTextOut},
    {RecordKind::StretchBlt, "StretchBlt", PlayStretchBlt},
    {RecordKind::DibStretchBlt, "DibStretchBlt", PlayDibStretchBlt},
    {RecordKind::SetDibToDevice, "SetDibToDevice", PlaySetDibToDevice},
    {RecordKind::StretchDib, "StretchDib", PlayStretchDib},
});
static_assert(std::ranges::adjacent_find(Records, std::ranges::greater_equal(), &RecordRow::Kind) ==
                  Records.end(),
              "rows are found by halving, so each number is above the one before");

/// The row of a kind; null for a kind that is ignored.
constexpr const RecordRow* RowOf(RecordKind kind) {
  const auto* const row = std::ranges::lower_bound(Records, kind, {}, &RecordRow::Kind);
  return row != Records.end() && row->Kind == kind ? &*row : nullptr;
}

}  // namespace terramark::metafile
