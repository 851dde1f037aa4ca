// Plays a 16-bit metafile into a raster of a given size.
#pragma once

#include <QSize>

#include "forms/raster.h"
#include "metafile/metafilereader.h"

namespace terramark::metafile {

/// Draws the metafile on white, stretched both ways so that its frame fills `size` pixels. The
/// frame is the bounds of the placeable header, or else the window that the file sets, or else what
/// it draws. Records beyond the limit on work are not drawn. Null when there is no frame and
/// nothing to draw, or when `size` is empty. std::bad_alloc when memory runs out.
forms::Picture PlayMetafile(const Metafile& metafile, QSize size);

}  // namespace terramark::metafile
