#include "pictures/lastpicture.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include "support/picturebytes.h"

namespace terramark::pictures {
namespace {

constexpr int SettleMilliseconds = 40;

struct LastPictureTest : testing::Test {
  void Write(char shade, const std::string& to) {
    QFile file(QString::fromStdString(to));
    const QByteArray bytes = DibBytes{4, 4, 24, 0, {}, QByteArray(48, shade)}.File();
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
  }
  forms::Picture Load(int width = 60) { return Last.Load(Path, width, 40).value_or(nullptr); }
  std::uint32_t Shade() { return Load()->Pixels.at(0) & 0xFFU; }

  QTemporaryDir Folder;
  const std::string Path = Folder.filePath("map.bmp").toStdString();
  LastPicture Last;
};

TEST_F(LastPictureTest, IsGivenAgainWhileItIsShownForTheSameBox) {
  Write(1, Path);
  QThread::msleep(SettleMilliseconds);
  forms::Picture shown = Load();
  EXPECT_EQ(Load(), shown);
  EXPECT_NE(Load(61), shown);
  shown = Load();
  const std::weak_ptr<const forms::Raster> kept = shown;
  shown.reset();
  EXPECT_TRUE(kept.expired());
  EXPECT_EQ(Shade(), 1U);
  EXPECT_TRUE(QFile::remove(Folder.filePath("map.bmp")));
  EXPECT_EQ(Load(), nullptr);
}

TEST_F(LastPictureTest, IsReadAnewOnceItsFileHasChanged) {
  Write(1, Path);
  QThread::msleep(SettleMilliseconds);
  const forms::Picture first = Load();
  const auto written = std::filesystem::last_write_time(Path);
  Write(2, Path);
  std::filesystem::last_write_time(Path, written);
  EXPECT_EQ(Shade(), 2U) << "of the same size and apparent age";
  Write(3, Path + ".new");
  QThread::msleep(SettleMilliseconds);
  const forms::Picture second = Load();
  std::filesystem::rename(Path + ".new", Path);
  EXPECT_EQ(Shade(), 3U);
  // What is read within a tick of its last change is not trusted; a slow machine needs some tries.
  forms::Picture shown;
  int tries = 0;
  do {
    Write(4, Path);
    shown = Load();
  } while (Load() == shown && ++tries < 50);
  EXPECT_LT(tries, 50);
}

}  // namespace
}  // namespace terramark::pictures
