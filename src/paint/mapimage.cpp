#include "paint/mapimage.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <algorithm>

#include "forms/form.h"
#include "forms/geometry.h"
#include "paint/boxpaint.h"
#include "paint/lettering.h"

namespace terramark::paint {

namespace {

/// Each edge is rounded by itself, so that adjacent areas stay adjacent.
QRect Shrunk(const forms::PixelRect& area, double scale) {
  const auto edge = [scale](int at) { return qRound(at * scale); };
  const QPoint corner(edge(area.Left), edge(area.Top));
  return {corner,
          QPoint(edge(area.Left + area.Width), edge(area.Top + area.Height)) - QPoint(1, 1)};
}

void PaintLabels(QImage& map, const forms::PictureBox& box, double scale) {
  QPainter painter(&map);
  painter.setFont(TextFont(box.ParentForm()->Host));
  ForEachLabel(box, [&](const forms::Label& label) {
    const QRect area = Shrunk(PixelBounds(label), scale);
    painter.setClipRect(area);
    PaintLabel(painter, area, scale, label);
  });
}

}  // namespace

std::optional<std::string> MapAsPng(const forms::PictureBox& box, int side) {
  if (!box.Picture.Get()) return std::nullopt;
  const forms::Raster& picture = *box.Picture.Get();
  const int longer = std::max(picture.Width, picture.Height);
  if (longer < 1 || side < 1) return std::nullopt;
  // The QImage begins with the raster's memory; shrinking or painting makes a copy.
  QImage map(reinterpret_cast<const uchar*>(picture.Pixels.data()), picture.Width, picture.Height,
             QImage::Format_RGB32);
  const double scale = std::min(1.0, static_cast<double>(side) / longer);
  if (scale < 1) {
    const QSize size(std::max(1, qRound(picture.Width * scale)),
                     std::max(1, qRound(picture.Height * scale)));
    map = map.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  PaintLabels(map, box, scale);
  QByteArray bytes;
  QBuffer file(&bytes);
  if (!map.save(&file, "PNG")) return std::nullopt;
  return bytes.toStdString();
}

}  // namespace terramark::paint
