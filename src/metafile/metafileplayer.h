// Plays a 16-bit metafile into a raster of a given size.
#pragma once

#include <QSize>
#include <chrono>

#include "forms/raster.h"
#include "metafile/budget.h"
#include "metafile/metafilereader.h"

namespace terramark::metafile {

/// Draws the metafile on white, stretched both ways so that its frame fills `size` pixels. The
/// frame is the bounds of the placeable header, or else the window that the file sets, or else what
/// it draws. A fault when there is no frame and nothing to draw, when `size` is empty, or when it
/// takes more processor time than `time` or more memory than a budget has. std::bad_alloc when
/// memory runs out.
forms::LoadedPicture PlayMetafile(const Metafile& metafile, QSize size,
                                  std::chrono::nanoseconds time = MaxDrawingTime);

}  // namespace terramark::metafile
