// The map in a picture box as a small picture of its own.
#pragma once

#include <optional>
#include <string>

#include "forms/picturebox.h"

namespace terramark::paint {

/// The box's picture with the visible labels, as the bytes of a PNG file. If its longer side has
/// more than `side` pixels it is shrunk to that; it is never enlarged, and at its own size it has
/// the pixels that the editor shows. Nothing without a picture or with a side below 1.
std::optional<std::string> MapAsPng(const forms::PictureBox& box, int side);

}  // namespace terramark::paint
