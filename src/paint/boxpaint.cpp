#include "paint/boxpaint.h"

#include <QImage>
#include <QPainter>
#include <QTransform>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "forms/geometry.h"
#include "paint/devicepixels.h"
#include "paint/frames.h"
#include "paint/labelpaint.h"
#include "paint/screencolour.h"

namespace terramark::paint {

namespace {

constexpr std::uint32_t Black = 0xFF000000;

/// A pixel of the zoomed image, counted from its corner, and the pixel of the image that it shows.
struct Sample {
  int Zoomed;
  int OnImage;
};

/// What a part of the device shows of the image; the part must lie on the image.
QImage Zoomed(const forms::PictureBox& box, const BlackBlocks& black, const QTransform& toDevice,
              const QRect& part) {
  const forms::Raster& image = box.Backdrop();
  const forms::PictureBox::FillLayer& fill = box.Fill();
  const forms::PixelBits* const blocks = black.At(box.Zoom);
  // Beside a picture that is smaller than the box there are no blocks.
  const int blocksAcross = blocks == nullptr ? 0 : ToScreen(box.Zoom, box.Picture.Get()->Width);
  const int blocksDown = blocks == nullptr ? 0 : ToScreen(box.Zoom, box.Picture.Get()->Height);
  std::vector<Sample> columns;
  for (int x = part.left(); x <= part.right(); ++x) {
    const int zoomed = MapFromDevice(x, toDevice.m11(), toDevice.dx()) + box.ScrollLeft;
    columns.push_back({zoomed, ToPicture(box.Zoom, zoomed)});
  }
  QImage seen(part.size(), QImage::Format_RGB32);
  if (seen.isNull()) return seen;  // no memory
  int shown = -1;
  for (int y = 0; y < part.height(); ++y) {
    const int zoomed = MapFromDevice(part.top() + y, toDevice.m22(), toDevice.dy()) + box.ScrollTop;
    const int row = ToPicture(box.Zoom, zoomed);
    auto* const to = reinterpret_cast<std::uint32_t*>(seen.scanLine(y));
    if (row == shown) {
      std::memcpy(to, seen.constScanLine(y - 1), columns.size() * sizeof *to);
      continue;
    }
    const std::uint32_t* const from = image.Pixels.data() + image.IndexOf(0, row);
    for (std::size_t x = 0; x < columns.size(); ++x) to[x] = from[columns[x].OnImage];
    if (!fill.Pixels.IsEmpty()) {
      for (std::size_t x = 0; x < columns.size(); ++x) {
        if (fill.Pixels.At(columns[x].OnImage, row)) to[x] = fill.Paint;
      }
    }
    if (blocks != nullptr && zoomed < blocksDown) {
      for (std::size_t x = 0; x < columns.size() && columns[x].Zoomed < blocksAcross; ++x) {
        if (blocks->At(columns[x].Zoomed, zoomed)) to[x] = Black;
      }
    }
    shown = row;
  }
  return seen;
}

/// A part of the image with the paint on it; the part begins at `corner`.
QImage WithFill(QImage part, const forms::PictureBox::FillLayer& fill, QPoint corner) {
  for (int y = 0; y < part.height(); ++y) {
    fill.PaintRow(corner.y() + y, corner.x(), corner.x() + part.width(),
                  reinterpret_cast<std::uint32_t*>(part.scanLine(y)));
  }
  return part;
}

}  // namespace

void PaintImage(QPainter& painter, const forms::PictureBox& box, const BlackBlocks& black,
                const QRect& part) {
  const forms::Raster& raster = box.Backdrop();
  const forms::Magnification zoom = box.Zoom;
  const QRect whole(-box.ScrollLeft, -box.ScrollTop, ToScreen(zoom, raster.Width),
                    ToScreen(zoom, raster.Height));
  const QRect seen = part & whole;
  if (seen != part) painter.fillRect(part, ScreenColour(box.BackColor));
  if (seen.isEmpty()) return;
  const QTransform toDevice = painter.deviceTransform();
  if (zoom != forms::ActualSize || toDevice.isScaling()) {
    // Not left to the painter, which rounds at the edges of each area that it paints.
    const QRect onDevice = MapToDevice(toDevice, seen);
    painter.setTransform(toDevice.inverted(), true);
    painter.drawImage(onDevice.topLeft(), Zoomed(box, black, toDevice, onDevice));
    return painter.resetTransform();
  }
  // The QImage uses the raster's memory; only what is shown is copied.
  const QImage image(reinterpret_cast<const uchar*>(raster.Pixels.data()), raster.Width,
                     raster.Height, QImage::Format_RGB32);
  const QRect shown = seen.translated(-whole.topLeft());
  if (box.Fill().Pixels.IsEmpty()) return painter.drawImage(seen.topLeft(), image, shown);
  painter.drawImage(seen.topLeft(), WithFill(image.copy(shown), box.Fill(), shown.topLeft()));
}

void PaintLabel(QPainter& painter, const QRect& area, double scale, const forms::Label& label) {
  const forms::PixelRect own = PixelBounds(label);
  painter.translate(area.topLeft());
  painter.scale(scale, scale);
  DrawLabel(painter, {0, 0, own.Width, own.Height}, label);
  painter.resetTransform();
}

void PaintRing(QPainter& painter, const QRect& area) {
  int out = RingWidth;
  for (const QColor& colour : {QColor(Qt::black), QColor(Qt::white), QColor(Qt::black)}) {
    DrawFrame(painter, area.adjusted(-out, -out, out, out), colour);
    --out;
  }
}

}  // namespace terramark::paint
