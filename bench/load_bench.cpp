// What it takes to load a large bitmap, in time and in memory, beside Qt's reader alone.
#include <QCoreApplication>
#include <QImageReader>
#include <cstdio>

#include "pictures/pictureloader.h"
#include "processes.h"
#include "samples.h"

namespace terramark {
namespace {

constexpr int TimedRounds = 25;
constexpr int MemoryRounds = 5;

forms::Picture Load(const QString& path) {
  const auto file = files::RegularFile::Open(path.toStdString());
  if (!file) qFatal("cannot open %s: %s", qPrintable(path), file.error().Description().c_str());
  forms::LoadedPicture loaded = pictures::LoadPictureFile(*file, 0, 0);
  if (!loaded) qFatal("cannot load %s: %s", qPrintable(path), loaded.error().c_str());
  return *loaded;
}

QImage Read(const QString& path) {
  QImage image = QImageReader(path).read();
  image.convertTo(QImage::Format_RGB32);
  if (image.isNull()) qFatal("cannot read %s", qPrintable(path));
  return image;
}

/// Prints by how much a load raises this process's memory.
void PrintMemory(const QString& who, const QString& path) {
  const double before = StatusKilobytes("VmRSS");
  if (who == "editor") {
    Load(path);
  } else {
    Read(path);
  }
  std::printf("%f\n", StatusKilobytes("VmHWM") - before);
}

void CompareTimes(const QString& path) {
  Samples editor;
  Samples reader;
  for (int i = 0; i < TimedRounds; ++i) {
    // Each picture is freed once the clock has stopped.
    forms::Picture picture;
    editor.Take([&] { picture = Load(path); });
    picture.reset();
    QImage image;
    reader.Take([&] { image = Read(path); });
  }
  std::printf("%-40s editor %6.1f ms   Qt's reader %6.1f ms   ratio %.2f\n",
              "load a bitmap, 4096 x 4096, 24 bit", 1000 * editor.Median(), 1000 * reader.Median(),
              editor.Median() / reader.Median());
}

void CompareMemory(const QString& path) {
  constexpr double PictureKilobytes = 4.0 * LargeBitmap::Side * LargeBitmap::Side / 1024;
  Samples editor;
  Samples reader;
  for (int i = 0; i < MemoryRounds; ++i) {
    editor.Add(RunAnew({"editor", path}).at(0));
    reader.Add(RunAnew({"reader", path}).at(0));
  }
  std::printf("%-40s editor %6.2f      Qt's reader %6.2f\n",
              "peak memory of that, over its pixels'", editor.Median() / PictureKilobytes,
              reader.Median() / PictureKilobytes);
}

}  // namespace
}  // namespace terramark

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() == 3) {
    terramark::PrintMemory(arguments[1], arguments[2]);
    return 0;
  }
  const terramark::LargeBitmap bitmap;
  terramark::CompareTimes(bitmap.Path);
  terramark::CompareMemory(bitmap.Path);
  return 0;
}
