#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QList>
#include <set>

#include "metafile/metafileplayer.h"
#include "metafile/recordtable.h"

namespace terramark::metafile {
namespace {

QByteArray BytesOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

/// Whether a case is of letters and the system draws those in its own way. The golden pictures have
/// them as FreeType draws them.
bool HasOwnLetters([[maybe_unused]] const QByteArray& cell) {
#ifdef Q_OS_WIN
  return cell.startsWith("text") || cell.contains("Text") || cell.startsWith("character set") ||
         cell.startsWith("letters");
#else
  return false;
#endif
}

/// Compares a metafile, in which each cell of a grid has a name, with the picture beside this file.
/// It is left where the metafiles of the build are when it differs; copied from there, once it has
/// been looked at, it is the new golden picture.
void ExpectGolden(const QString& folder, const QString& name, const QList<QByteArray>& cells,
                  QSize cell, int columns) {
  const int rows = (static_cast<int>(cells.size()) + columns - 1) / columns;
  const QByteArray bytes = BytesOf(folder + "/" + name + ".wmf");
  const auto read = ReadMetafile(bytes);
  ASSERT_TRUE(read) << name.toStdString();
  const forms::Picture picture =
      PlayMetafile(*read, {columns * cell.width(), rows * cell.height()}).value_or(nullptr);
  ASSERT_TRUE(picture) << name.toStdString();
  const QImage drawn(reinterpret_cast<const uchar*>(picture->Pixels.data()), picture->Width,
                     picture->Height, QImage::Format_RGB32);
  const QImage golden = QImage(GOLDENS "/" + name + ".png").convertToFormat(drawn.format());
  const QString left = METAFILES "/" + name + ".png";
  QFile::remove(left);
  std::string different;
  for (qsizetype i = 0; i < cells.size(); ++i) {
    const int place = static_cast<int>(i);
    const QPoint corner(place % columns * cell.width(), place / columns * cell.height());
    const QRect box(corner, cell);
    if (HasOwnLetters(cells[i]) || drawn.copy(box) == golden.copy(box)) continue;
    different += "\n  " + cells[i].toStdString();
  }
  if (different.empty()) return;
  EXPECT_TRUE(drawn.save(left));
  ADD_FAILURE() << left.toStdString() << " is not the golden picture in" << different;
}

TEST(Goldens, EachCaseIsDrawnAsEver) {
  for (const char* name : {"everyrecord", "oldkinds"}) {
    const QByteArray names = BytesOf(QString(METAFILES "/%1.txt").arg(name));
    ExpectGolden(METAFILES, name, names.trimmed().split('\n'), {48, 32}, 12);
  }
  ExpectGolden(SAMPLES, "europe", {"the map"}, {500, 400}, 1);
}

TEST(Goldens, EachRecordHasACase) {
  const QByteArray bytes = BytesOf(METAFILES "/everyrecord.wmf");
  const auto read = ReadMetafile(bytes);
  ASSERT_TRUE(read);
  std::set<RecordKind> cases;
  for (const MetafileRecord& record : read->Records) cases.insert(record.Kind);
  for (const RecordRow& row : Records) EXPECT_TRUE(cases.contains(row.Kind)) << row.Name;
}

}  // namespace
}  // namespace terramark::metafile
