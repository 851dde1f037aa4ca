// The state that a metafile's records change and draw with: the mapping from logical units to
// pixels, the selected objects, colours and modes, with SaveDC and RestoreDC.
#pragma once

#include <QPointF>
#include <vector>

#include "metafile/fontcache.h"
#include "metafile/graphicsobjects.h"
#include "metafile/surface.h"

namespace terramark::metafile {

/// The part of the logical plane that fills the box until the file says otherwise. Its sides are
/// not 0; a negative one runs backwards.
struct LogicalFrame {
  QPoint Origin;
  QSize Extent{1, 1};
};

/// All that SaveDC saves. The initial values are those of a new drawing context.
struct DeviceState {
  QPointF WindowOrigin{0, 0};  // logical, as the next
  QPointF WindowExtent{1, 1};
  QPointF ViewportOrigin{0, 0};  // pixels, as the next; neither extent is ever 0
  QPointF ViewportExtent{1, 1};
  bool UpIsPositive = false;  // a metric mapping mode of a picture that names no window
  Pen CurrentPen;
  Brush CurrentBrush;
  Font CurrentFont;
  Palette CurrentPalette;
  ColourRef TextColour = 0;
  ColourRef BackColour = WhiteRef;
  bool Opaque = true;             // gaps in lines, hatches and text show BackColour
  int Operation = CopyOperation;  // FirstOperation to LastOperation
  FillRule PolygonFill = FillRule::Alternate;
  int StretchMode = StretchAnd;
  int TextAlign = 0;   // bits of SetTextAlign
  int CharExtra = 0;   // logical units to add to each letter
  int BreakExtra = 0;  // logical units to share out among BreakCount blanks
  int BreakCount = 0;
  QPoint Position;  // logical
  Clip SavedClip;   // of a saved state only
};

class DeviceContext {
 public:
  /// Where the frame comes from. A frame from the file fills the box until the file sets a window
  /// of its own. When the drawing was measured, the file sets no window: its units are pixels, and
  /// the frame stays.
  enum class FrameSource { File, Measured };

  /// Draws on `surface`; `frame` fills `box` pixels.
  DeviceContext(Surface& surface, const LogicalFrame& frame, QSize box, FrameSource source);

  Surface& Target() { return surface_; }
  DeviceState State;
  ObjectTable Objects;
  FontCache Fonts;

  bool Measured() const { return source_ == FrameSource::Measured; }

  /// SaveDC. Beyond MaxSaves levels it is ignored; beyond MaxSavedClipBytes the budget is used up.
  void Save();
  /// RestoreDC: a negative level counts back from the last save, a positive one from the first. A
  /// level that was never saved changes nothing.
  void Restore(int level);
  /// A region becomes the clip; a palette or monostate changes nothing.
  void Select(const GraphicsObject& object);

  /// Maps logical units to pixels, limited to MaxDevice each way.
  QPoint ToDevice(QPointF logical) const;
  /// Maps both corners and puts them in order; the right and bottom edges are outside.
  QRect ToDevice(int left, int top, int right, int bottom) const;
  /// Pixels per logical unit; negative where the axis runs backwards.
  QPointF Scale() const;

  /// An opaque pixel; black for a palette index without an entry.
  QRgb Resolve(ColourRef colour) const;
  bool HasPen() const { return State.CurrentPen.Style != PenStyle::None; }
  bool HasBrush() const { return State.CurrentBrush.Style != BrushStyle::None; }
  /// The pen's width in pixels, 1 to MaxPenWidth.
  int PenWidth() const;
  Paint PenPaint() const;
  /// A hatch or a pattern is the paint's Pattern. A brush that paints nothing gives its colour: ask
  /// HasBrush first.
  Paint BrushPaint(const Brush& brush) const;

 private:
  /// The memory of the saved clips; one that was not changed in between counts once.
  std::int64_t SavedClipBytes() const;

  Surface& surface_;
  FrameSource source_;
  QPointF baseScale_{1, 1};
  QPointF baseOffset_{0, 0};
  std::vector<DeviceState> saved_;
};

}  // namespace terramark::metafile
