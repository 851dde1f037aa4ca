// Decodes a device-independent bitmap, the body of a bitmap file and of a metafile's blit records,
// after its header has been found sound.
#pragma once

#include <QByteArrayView>
#include <QImage>
#include <optional>

#include "pictures/graphicsobjects.h"

namespace terramark::pictures {

/// Larger bitmaps are refused: 32 million pixels take 128 MiB.
constexpr int MaxBitmapSide = 16384;
constexpr qint64 MaxBitmapPixels = 32'000'000;

/// The bitmap that starts with its info header at the first byte of `dib`, of 1, 4, 8, 16, 24 or 32
/// bits a pixel, run-length coded or not. `bitsAt` is where its rows start; without it they follow
/// the colour table. Up to half of the rows' bytes may be missing and read as 0. The picture is
/// Format_RGB32; null for a bitmap that is broken or too large. std::bad_alloc, or null, when the
/// memory does not reach.
QImage DecodeDib(QByteArrayView dib, std::optional<qsizetype> bitsAt);

/// The same with a colour table that holds two-byte numbers of `palette`'s entries.
QImage DecodeDib(QByteArrayView dib, const Palette& palette);

/// Whether the rows are stored from the bottom up, as is usual and as is taken for a broken header.
bool IsBottomUp(QByteArrayView dib);

}  // namespace terramark::pictures
