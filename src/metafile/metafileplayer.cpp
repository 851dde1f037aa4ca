#include "metafile/metafileplayer.h"

#include <algorithm>
#include <string>

#include "metafile/devicecontext.h"
#include "metafile/limits.h"
#include "metafile/recordtable.h"

namespace terramark::metafile {
namespace {

using FrameSource = DeviceContext::FrameSource;

void PlayRecords(DeviceContext& context, const Metafile& metafile) {
  for (const MetafileRecord& record : metafile.Records) {
    if (!context.Target().Cost().Spend(1 + record.Words())) return;
    if (const RecordRow* const row = RowOf(record.Kind)) row->Player(context, record);
  }
}

bool SetsWindow(const Metafile& metafile) {
  return std::ranges::any_of(metafile.Records, [](const MetafileRecord& record) {
    return record.Kind == RecordKind::SetWindowExt && record.Int(0) != 0 && record.Int(1) != 0;
  });
}

QRect MeasureDrawing(const Metafile& metafile, Budget& budget) {
  Surface surface(QSize(1, 1), Surface::Use::Measure, budget);
  DeviceContext context(surface, LogicalFrame{}, QSize(1, 1), FrameSource::Measured);
  PlayRecords(context, metafile);
  return surface.MeasuredBounds();
}

}  // namespace

forms::LoadedPicture PlayMetafile(const Metafile& metafile, QSize size,
                                  std::chrono::nanoseconds time) {
  constexpr const char* Nothing = "nothing is drawn in it";
  constexpr const char* TooMuch = "it takes too much time or memory to draw";
  if (size.isEmpty()) return tl::unexpected<std::string>(Nothing);
  if (metafile.Records.size() >= MaxMetafileRecords) return tl::unexpected<std::string>(TooMuch);
  LogicalFrame frame;
  FrameSource source = FrameSource::File;
  Budget budget(time);
  if (metafile.Bounds) {
    frame = {metafile.Bounds->topLeft(), metafile.Bounds->size()};
  } else if (SetsWindow(metafile)) {
    frame = {QPoint(0, 0), size};
  } else {
    const QRect drawn = MeasureDrawing(metafile, budget);
    if (budget.IsUsedUp()) return tl::unexpected<std::string>(TooMuch);
    if (drawn.isEmpty()) return tl::unexpected<std::string>(Nothing);
    frame = {drawn.topLeft(), drawn.size()};
    source = FrameSource::Measured;
  }
  Surface surface(size, Surface::Use::Draw, budget);
  DeviceContext context(surface, frame, size, source);
  PlayRecords(context, metafile);
  if (budget.IsUsedUp()) return tl::unexpected<std::string>(TooMuch);
  return surface.TakeImage();
}

}  // namespace terramark::metafile
