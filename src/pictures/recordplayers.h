// The records of a metafile by kind. Each function plays the records it knows and is false for any
// other; a record that is cut short or makes no sense is true as well, and draws what it can.
// std::bad_alloc when the memory does not reach.
#pragma once

#include "pictures/devicecontext.h"
#include "pictures/metafilereader.h"

namespace terramark::pictures {

/// Modes, mapping, objects and clip.
bool PlayStateRecord(DeviceContext& context, const MetafileRecord& record);
/// Lines, shapes and fills.
bool PlayDrawingRecord(DeviceContext& context, const MetafileRecord& record);
/// Fills and frames of region objects.
bool PlayRegionRecord(DeviceContext& context, const MetafileRecord& record);
bool PlayTextRecord(DeviceContext& context, const MetafileRecord& record);
/// Blits and bitmap brushes.
bool PlayBitmapRecord(DeviceContext& context, const MetafileRecord& record);

}  // namespace terramark::pictures
