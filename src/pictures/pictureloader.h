// Reads a picture file: a bitmap of any usual kind, or a 16-bit metafile drawn to the size of the
// box that will show it.
#pragma once

#include <string_view>

#include "files/regularfile.h"
#include "forms/raster.h"

namespace terramark::pictures {

/// Loads the picture in a file, whose kind is recognised by its content, never by its name. A
/// bitmap has its own size whatever the box; its file is read in pieces. A metafile fills the box,
/// in pixels. The limits are in bitmap/limits.h and metafile/limits.h. A fault when the file cannot
/// be read, is truncated meanwhile, is too large, damaged or of neither kind, or when a metafile
/// draws nothing, takes too much time or memory, or has an empty box; std::bad_alloc when memory
/// runs out.
forms::LoadedPicture LoadPictureFile(const files::RegularFile& file, int boxWidth, int boxHeight);

/// The same from memory; null for any fault.
forms::Picture LoadPictureBytes(std::string_view bytes, int boxWidth, int boxHeight);

}  // namespace terramark::pictures
