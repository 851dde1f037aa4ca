// Plays a 16-bit metafile into a raster of a given size.
#pragma once

#include <QSize>

#include "forms/raster.h"
#include "metafile/metafilereader.h"

namespace terramark::metafile {

/// Draws the metafile over white, stretched both ways so that its frame fills `size` pixels: the
/// bounds of the placeable header, else the window the file sets, else what it draws. What lies
/// past the limit on work is not drawn. Null when there is nothing to draw and no frame, or `size`
/// is empty. std::bad_alloc when the memory does not reach.
forms::Picture PlayMetafile(const Metafile& metafile, QSize size);

}  // namespace terramark::metafile
