// Reads a picture file: a bitmap of any usual kind, or a 16-bit metafile drawn to the size of the
// box that will show it.
#pragma once

#include <QByteArrayView>
#include <QImage>
#include <QSize>
#include <cstddef>
#include <filesystem>

namespace terramark::pictures {

/// Larger files are not read.
constexpr std::size_t MaxPictureFileBytes = std::size_t{64} * 1024 * 1024;
/// The box is cut down to this, in pixels each way.
constexpr int MaxPictureBoxSide = 4096;

/// The picture in the file at `path`, told by its content and never by its name. A bitmap has its
/// own size, at most MaxBitmapSide pixels each way and MaxBitmapPixels in all (dib.h). A metafile
/// has the size of `box` in pixels; it plays within MaxMetafileRecords (metafileplayer.h) and
/// Surface::WorkLimit, and stops there with what is drawn. Always Format_RGB32, opaque. Null when
/// the file cannot be read, is too large or holds neither kind, or Qt finds no memory for the
/// image; std::bad_alloc when none is left for the rest.
QImage LoadPictureFile(const std::filesystem::path& path, QSize box);

/// The same from memory.
QImage LoadPictureBytes(QByteArrayView bytes, QSize box);

}  // namespace terramark::pictures
