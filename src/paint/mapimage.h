// The map in a picture box as a small picture of its own.
#pragma once

#include <optional>
#include <string>

#include "forms/picturebox.h"

namespace terramark::paint {

/// The box's picture with the visible labels in their places, as the bytes of a PNG file. Where its
/// longer side has more pixels than `side`, it is shrunk to that; nothing is enlarged, and at its
/// own size it has the pixels that the editor shows. Nothing without a picture or with a side below
/// 1.
std::optional<std::string> MapAsPng(const forms::PictureBox& box, int side);

}  // namespace terramark::paint
