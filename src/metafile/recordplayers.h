// A player for each kind of record. A record that is cut short or makes no sense draws what it can.
// std::bad_alloc when memory runs out.
#pragma once

#include "metafile/devicecontext.h"
#include "metafile/metafilereader.h"

namespace terramark::metafile {

/// Plays one record onto the context.
using RecordPlayer = void(DeviceContext& context, const MetafileRecord& record);

// staterecords.cpp: modes, mapping and clip.
RecordPlayer PlaySaveDC, PlayRestoreDC;
RecordPlayer PlaySetBkMode, PlaySetRop2, PlaySetPolyFillMode, PlaySetStretchBltMode;
RecordPlayer PlaySetTextCharExtra, PlaySetTextAlign, PlaySetTextJustification;
RecordPlayer PlaySetBkColor, PlaySetTextColor;
RecordPlayer PlaySetMapMode, PlaySetWindowOrg, PlaySetWindowExt, PlaySetViewportOrg;
RecordPlayer PlaySetViewportExt, PlayOffsetWindowOrg, PlayOffsetViewportOrg;
RecordPlayer PlayScaleWindowExt, PlayScaleViewportExt;
RecordPlayer PlaySelectClipRegion, PlayExcludeClipRect, PlayIntersectClipRect;
RecordPlayer PlayOffsetClipRgn;

// objectrecords.cpp: objects.
RecordPlayer PlayCreatePalette, PlayCreatePenIndirect, PlayCreateFontIndirect;
RecordPlayer PlayCreateBrushIndirect, PlayCreateRegion, PlayDeleteObject;
RecordPlayer PlaySelectObject, PlaySelectPalette, PlaySetPaletteEntries;

// drawingrecords.cpp: lines, shapes and floods.
RecordPlayer PlayLineTo, PlayMoveTo, PlayPolygon, PlayPolyline, PlayPolyPolygon;
RecordPlayer PlayRectangle, PlayEllipse, PlayRoundRect, PlayArc, PlayChord, PlayPie;
RecordPlayer PlayFloodFill, PlayExtFloodFill, PlaySetPixel;

// regionrecords.cpp: regions.
RecordPlayer PlayFillRegion, PlayFrameRegion, PlayPaintRegion, PlayInvertRegion;

// textrecords.cpp: text.
RecordPlayer PlayTextOut, PlayExtTextOut;

// bitmaprecords.cpp: blits and bitmap brushes.
RecordPlayer PlayPatBlt, PlayBitBlt, PlayDibBitBlt, PlayStretchBlt, PlayDibStretchBlt;
RecordPlayer PlayStretchDib, PlaySetDibToDevice;
RecordPlayer PlayCreatePatternBrush, PlayDibCreatePatternBrush;

}  // namespace terramark::metafile
