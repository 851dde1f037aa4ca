// The colours along the edges of smooth letters.
#pragma once

#include <QRgb>
#include <cstdint>

namespace terramark::metafile {

/// The pixel of text over a pixel of `ground`, both opaque; `coverage` is 0 for none of the text
/// and 255 for nothing else. In between the brighter colour gets more than its share:
/// otherwise dark text would look too bold, and bright text too thin.
QRgb BlendText(QRgb text, QRgb ground, std::uint8_t coverage);

}  // namespace terramark::metafile
