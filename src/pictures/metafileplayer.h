// Plays a 16-bit metafile into a raster of a given size.
#pragma once

#include <QByteArrayView>
#include <QImage>
#include <QSize>

namespace terramark::pictures {

/// At most so many records are played of one file.
constexpr int MaxMetafileRecords = 1'000'000;

/// Draws the metafile over white, stretched both ways so that its frame fills `size` pixels: the
/// bounds of the placeable header, else the window the file sets, else what it draws. What lies
/// past a broken record, or past the limits on records and work, is not drawn. Format_RGB32; null
/// when the bytes are no metafile or hold nothing to draw and no frame, or `size` is empty.
/// std::bad_alloc when the memory does not reach.
QImage PlayMetafile(QByteArrayView bytes, QSize size);

}  // namespace terramark::pictures
