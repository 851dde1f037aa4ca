#include "metafile/metafileplayer.h"

#include <algorithm>
#include <optional>

#include "metafile/devicecontext.h"
#include "metafile/limits.h"
#include "metafile/recordtable.h"

namespace terramark::metafile {
namespace {

using FrameSource = DeviceContext::FrameSource;

/// Even a record that draws nothing takes some time.
constexpr std::int64_t WorkPerRecord = 50;

void PlayRecords(DeviceContext& context, const Metafile& metafile) {
  for (const MetafileRecord& record : metafile.Records) {
    if (!context.Target().ChargeWork(WorkPerRecord + record.Words())) return;
    if (const RecordRow* const row = RowOf(record.Kind)) row->Player(context, record);
  }
}

bool SetsWindow(const Metafile& metafile) {
  return std::ranges::any_of(metafile.Records, [](const MetafileRecord& record) {
    return record.Kind == RecordKind::SetWindowExt && record.Int(0) != 0 && record.Int(1) != 0;
  });
}

/// Subtracts its cost from `work`.
QRect MeasureDrawing(const Metafile& metafile, std::int64_t& work) {
  Surface surface(QSize(1, 1), Surface::Use::Measure, work);
  DeviceContext context(surface, LogicalFrame{}, QSize(1, 1), FrameSource::Measured);
  PlayRecords(context, metafile);
  work = surface.WorkLeft();
  return surface.MeasuredBounds();
}

}  // namespace

forms::Picture PlayMetafile(const Metafile& metafile, QSize size) {
  if (size.isEmpty()) return {};
  LogicalFrame frame;
  FrameSource source = FrameSource::File;
  std::int64_t work = WorkLimit;
  if (metafile.Bounds) {
    frame = {metafile.Bounds->topLeft(), metafile.Bounds->size()};
  } else if (SetsWindow(metafile)) {
    frame = {QPoint(0, 0), size};
  } else {
    const QRect drawn = MeasureDrawing(metafile, work);
    if (drawn.isEmpty()) return {};
    frame = {drawn.topLeft(), drawn.size()};
    source = FrameSource::Measured;
  }
  Surface surface(size, Surface::Use::Draw, work);
  DeviceContext context(surface, frame, size, source);
  PlayRecords(context, metafile);
  return surface.TakeImage();
}

}  // namespace terramark::metafile
