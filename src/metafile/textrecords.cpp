#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <new>

#include "metafile/fontcache.h"
#include "metafile/limits.h"
#include "metafile/recordplayers.h"
#include "metafile/textdecoding.h"

namespace terramark::metafile {
namespace {

struct TextRun {
  QByteArrayView Bytes;
  QPoint At;                 // logical
  std::vector<int> Advance;  // logical, one a byte; empty for the font's own
};

/// Letters along the baseline, with their offsets in pixels from its start.
struct TextLine {
  std::vector<const LetterShape*> Letters;
  std::vector<int> Offsets;
  int Width = 0;
};

/// Stops when the budget is used up.
TextLine LayOut(DeviceContext& context, const TextRun& run, CachedFont& font) {
  const DeviceState& state = context.State;
  const double scale = std::abs(context.Scale().x());
  const auto toPixels = [scale](double logical) {
    return static_cast<int>(std::clamp(std::floor(logical * scale + 0.5), -1e7, 1e7));
  };
  TextLine line;
  std::int64_t logical = 0;
  double own = 0;
  for (qsizetype at = 0; at < run.Bytes.size() && context.Target().Cost().Spend(1);) {
    const int bytes = FirstLetterBytes(run.Bytes.sliced(at), state.CurrentFont);
    const LetterShape& shape = font.ShapeOf(run.Bytes.sliced(at, bytes), context.Target().Cost());
    line.Letters.push_back(&shape);
    line.Offsets.push_back(line.Width);
    if (run.Advance.empty()) {
      own += std::floor(shape.Advance * font.Match.Stretch + 0.5);
    } else {
      for (int i = 0; i < bytes; ++i) logical += run.Advance[static_cast<std::size_t>(at + i)];
    }
    logical += state.CharExtra;
    if (shape.Blank && state.BreakCount > 0) logical += state.BreakExtra / state.BreakCount;
    line.Width = static_cast<int>(own) + toPixels(static_cast<double>(logical));
    at += bytes;
  }
  return line;
}

/// The start of the baseline relative to the reference point, before the text is rotated.
QPoint BaselineStart(int align, const TextLine& line, const MatchedFont& font) {
  QPoint start;
  if ((align & AlignSideways) == AlignRight) start.setX(-line.Width);
  if ((align & AlignSideways) == AlignCentre) start.setX(-line.Width / 2);
  if ((align & AlignUpright) == AlignBottom) {
    start.setY(-font.Descent);
  } else if ((align & AlignUpright) != AlignBaseline) {
    start.setY(font.Ascent);
  }
  return start;
}

/// The cell of letters along `width` pixels of the baseline.
QRectF CellRect(const MatchedFont& font, double width) {
  return {0, -double(font.Ascent), width, double(font.Ascent + font.Descent)};
}

/// The pixels that letters of a cell may paint: some extend beyond it.
QRectF InkRect(const QRectF& cell, const MatchedFont& font) {
  const double overhang = font.Face.pixelSize() * std::max(1.0, font.Stretch) / 2;
  return cell.adjusted(-overhang, -overhang, overhang, overhang);
}

/// The lines under and through the whole text, its blanks included.
void DrawRules(QPainter& painter, double width, const QFont& font) {
  if (!font.underline() && !font.strikeOut()) return;
  const QFontMetricsF metrics(font);
  painter.setPen(QPen(Qt::black, metrics.lineWidth(), Qt::SolidLine, Qt::FlatCap));
  const double under = std::min(std::ceil(metrics.underlinePos()), metrics.descent() - 1) + 0.5;
  const double through = -metrics.strikeOutPos();
  if (font.underline()) painter.drawLine(QLineF(0, under, width, under));
  if (font.strikeOut()) painter.drawLine(QLineF(0, through, width, through));
}

/// An image whose pixels are not yet set. Throws std::bad_alloc where Qt would return a null image,
/// which must not be drawn on.
QImage NewImage(QSize size) {
  QImage image(size, QImage::Format_RGB32);
  if (image.isNull()) throw std::bad_alloc();
  return image;
}

/// How much of each pixel of the area the text covers. Letters outside it are skipped at almost no
/// cost.
PixelMask DrawLetters(Surface& target, const TextLine& line, const MatchedFont& font,
                      const QTransform& place, const QRect& area) {
  QImage image = NewImage(area.size());
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setPen(Qt::black);
  const QTransform turn(place.m11(), place.m12(), place.m21(), place.m22(), 0, 0);
  const QTransform shape = QTransform(font.Stretch, 0, -font.Slant, 1, 0, 0) * turn;
  for (std::size_t i = 0; i < line.Letters.size(); ++i) {
    const LetterShape& letter = *line.Letters[i];
    const QPointF at = place.map(QPointF(line.Offsets[i], 0)) - area.topLeft();
    const QPointF whole(std::floor(at.x() + 0.5), std::floor(at.y() + 0.5));
    const QRectF cell = CellRect(font, letter.Advance * font.Stretch);
    const QRectF ink = turn.mapRect(InkRect(cell, font)).translated(whole);
    const QRect seen = ink.toAlignedRect().intersected(image.rect());
    if (letter.Runs.isEmpty() || seen.isEmpty()) continue;
    if (!target.Cost().Spend(std::int64_t{seen.width()} * seen.height())) break;
    painter.setTransform(shape * QTransform::fromTranslate(whole.x(), whole.y()));
    for (const QGlyphRun& run : letter.Runs) painter.drawGlyphRun(QPointF(0, 0), run);
  }
  const QPointF start = place.map(QPointF(0, 0)) - area.topLeft();
  painter.setTransform(turn * QTransform::fromTranslate(start.x(), start.y()));
  DrawRules(painter, line.Width, font.Face);
  painter.end();
  PixelMask coverage(area.size(), 0);
  for (int y = 0; y < area.height(); ++y) {
    const auto* from = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    std::uint8_t* to = coverage.Row(y);
    for (int x = 0; x < area.width(); ++x) to[x] = static_cast<std::uint8_t>(255 - qGreen(from[x]));
  }
  return coverage;
}

/// Text replaces the destination, whatever the raster operation.
Paint SolidPaint(const DeviceContext& context, ColourRef colour) {
  return {.Operation = CopyOperation, .Colour = context.Resolve(colour), .Pattern = {}};
}

enum class Ground { Kept, Filled };

void DrawRun(DeviceContext& context, const TextRun& run, Ground ground) {
  Surface& target = context.Target();
  DeviceState& state = context.State;
  if (run.Bytes.isEmpty()) return;
  const bool update = (state.TextAlign & AlignUpdate) != 0;
  const QPoint reference = update ? state.Position : run.At;
  CachedFont& lettered = context.Fonts.Find(state.CurrentFont, context.Scale(), target.Cost());
  const MatchedFont& font = lettered.Match;
  const TextLine line = LayOut(context, run, lettered);

  const QPoint origin = context.ToDevice(QPointF(reference));
  const QPoint start = BaselineStart(state.TextAlign, line, font);
  QTransform place = QTransform::fromTranslate(origin.x(), origin.y());
  if (state.CurrentFont.Escapement != 0) place.rotate(-state.CurrentFont.Escapement / 10.0);
  place.translate(start.x(), start.y());

  const QRectF cell = CellRect(font, line.Width);
  if (ground == Ground::Filled) {
    target.PaintPolygons({place.map(QPolygonF(cell))}, FillRule::Winding,
                         SolidPaint(context, state.BackColour));
  }
  const QRect bounds = place.mapRect(InkRect(cell, font)).toAlignedRect();
  const QRect inner = place.mapRect(cell).toAlignedRect();
  const QRect area = bounds.intersected(target.Area());
  if (target.BeginShape(context.Measured() ? inner : bounds) &&
      target.Cost().Spend(std::int64_t{area.width()} * area.height())) {
    target.PaintText(DrawLetters(target, line, font, place, area), area.topLeft(),
                     context.Resolve(state.TextColour));
  }
  const double scale = std::abs(context.Scale().x());
  if (update && (state.TextAlign & AlignSideways) != AlignCentre && scale > 0) {
    const double walked = std::clamp(line.Width / scale, -1e6, 1e6);
    const bool backwards = (state.TextAlign & AlignSideways) == AlignRight;
    state.Position.rx() += static_cast<int>(std::lround(backwards ? -walked : walked));
    state.Position.setX(std::clamp(state.Position.x(), -1 << 24, 1 << 24));
  }
}

}  // namespace

void PlayTextOut(DeviceContext& context, const MetafileRecord& record) {
  const qsizetype count = std::min<qsizetype>(record.Word(0), MaxLetters);
  const QByteArrayView text = record.From(1);
  const qsizetype after = 1 + (qsizetype{record.Word(0)} + 1) / 2;
  DrawRun(context,
          {.Bytes = text.first(std::min(count, text.size())),
           .At = record.PointYX(after),
           .Advance = {}},
          context.State.Opaque ? Ground::Filled : Ground::Kept);
}

void PlayExtTextOut(DeviceContext& context, const MetafileRecord& record) {
  Surface& target = context.Target();
  const qsizetype count = record.Word(2);
  const int options = record.Word(3);
  const bool hasRect = (options & (TextOpaque | TextClipped)) != 0;
  const qsizetype textAt = hasRect ? 8 : 4;
  const QRect rect = context.ToDevice(record.Int(4), record.Int(5), record.Int(6), record.Int(7));
  if ((options & TextOpaque) != 0) {
    target.PaintRectangle(rect, SolidPaint(context, context.State.BackColour));
  }
  if (count == 0 || (options & TextGlyphs) != 0) return;
  const QByteArrayView text = record.From(textAt);
  TextRun run{.Bytes = text.first(std::min({count, text.size(), qsizetype{MaxLetters}})),
              .At = record.PointYX(0),
              .Advance = {}};
  const qsizetype advanceAt = textAt + (count + 1) / 2;
  if (record.Words() >= advanceAt + count) {
    for (qsizetype i = 0; i < count; ++i) run.Advance.push_back(record.Int(advanceAt + i));
  }
  const Clip clip = target.CurrentClip();
  if ((options & TextClipped) != 0) target.IntersectClip(rect);
  const bool fills = context.State.Opaque && (options & TextOpaque) == 0;
  DrawRun(context, run, fills ? Ground::Filled : Ground::Kept);
  target.SetClip(clip);
}

}  // namespace terramark::metafile
