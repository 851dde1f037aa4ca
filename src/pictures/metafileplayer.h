// Plays a 16-bit metafile into a raster of a given size.
#pragma once

#include <QByteArrayView>
#include <QSize>

#include "forms/raster.h"

namespace terramark::pictures {

/// Draws the metafile over white, stretched both ways so that its frame fills `size` pixels: the
/// bounds of the placeable header, else the window the file sets, else what it draws. What lies
/// past a broken record, or past the limits on records and work, is not drawn. Null when
/// the bytes are no metafile or hold nothing to draw and no frame, or `size` is empty.
/// std::bad_alloc when the memory does not reach.
forms::Picture PlayMetafile(QByteArrayView bytes, QSize size);

}  // namespace terramark::pictures
