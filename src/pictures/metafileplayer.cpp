#include "pictures/metafileplayer.h"

#include <optional>

#include "pictures/devicecontext.h"
#include "pictures/limits.h"
#include "pictures/metafilereader.h"
#include "pictures/recordplayers.h"

namespace terramark::pictures {
namespace {

// Even a record that draws nothing takes some time.
constexpr std::int64_t WorkPerRecord = 50;

void PlayRecords(DeviceContext& context, QByteArrayView bytes) {
  MetafileReader reader(bytes);
  for (int i = 0; i < MaxMetafileRecords; ++i) {
    const std::optional<MetafileRecord> record = reader.Next();
    if (!record || !context.Target().Spend(WorkPerRecord + record->Words())) return;
    // A record that none of these knows is passed over.
    (void)(PlayStateRecord(context, *record) || PlayDrawingRecord(context, *record) ||
           PlayRegionRecord(context, *record) || PlayTextRecord(context, *record) ||
           PlayBitmapRecord(context, *record));
  }
}

bool SetsWindow(QByteArrayView bytes) {
  MetafileReader reader(bytes);
  for (int i = 0; i < MaxMetafileRecords; ++i) {
    const std::optional<MetafileRecord> record = reader.Next();
    if (!record) return false;
    if (record->Kind == RecordKind::SetWindowExt && record->Int(0) != 0 && record->Int(1) != 0)
      return true;
  }
  return false;
}

// Takes what it costs from `work`.
QRect MeasureDrawing(QByteArrayView bytes, std::int64_t& work) {
  Surface surface(QSize(1, 1), true, work);
  DeviceContext context(surface, Frame{}, QSize(1, 1), true);
  PlayRecords(context, bytes);
  work = surface.WorkLeft();
  return surface.Measured();
}

}  // namespace

forms::Picture PlayMetafile(QByteArrayView bytes, QSize size) {
  if (!MetafileReader::Recognises(bytes) || size.isEmpty()) return {};
  Frame frame;
  bool measured = false;
  std::int64_t work = WorkLimit;
  if (const std::optional<QRect> bounds = MetafileReader(bytes).Bounds()) {
    frame = {bounds->topLeft(), bounds->size()};
  } else if (SetsWindow(bytes)) {
    frame = {QPoint(0, 0), size};
  } else {
    const QRect drawn = MeasureDrawing(bytes, work);
    if (drawn.isEmpty()) return {};
    frame = {drawn.topLeft(), drawn.size()};
    measured = true;
  }
  Surface surface(size, false, work);
  DeviceContext context(surface, frame, size, measured);
  PlayRecords(context, bytes);
  return surface.TakeImage();
}

}  // namespace terramark::pictures
