// Scores the metafile player over a folder: every *.wmf there is drawn at the size of the *.png
// beside it, and the pixels that differ by more than 96, summed over the channels, are counted.
//   metafilescore FOLDER [OUTPUT [NAME...]]
// The drawn pictures are put into OUTPUT. A NAME, without its ".wmf", is drawn but not counted.
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "pictures/pictureloader.h"

namespace {

constexpr int MaxChannelSum = 96;

double PercentDifferent(const QImage& drawn, const QImage& wanted) {
  if (drawn.size() != wanted.size()) return 100;
  qint64 different = 0;
  for (int y = 0; y < wanted.height(); ++y) {
    for (int x = 0; x < wanted.width(); ++x) {
      const QRgb a = drawn.pixel(x, y);
      const QRgb b = wanted.pixel(x, y);
      const int sum = std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
                      std::abs(qBlue(a) - qBlue(b));
      if (sum > MaxChannelSum) ++different;
    }
  }
  return 100.0 * static_cast<double>(different) / (wanted.width() * wanted.height());
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  if (argc < 2) {
    std::fprintf(stderr, "usage: metafilescore FOLDER [OUTPUT [NAME...]]\n");
    return 2;
  }
  const QDir folder(QString::fromLocal8Bit(argv[1]));
  std::vector<double> scores;
  for (const QString& name : folder.entryList({"*.wmf"}, QDir::Files, QDir::Name)) {
    const QString base = name.chopped(4);
    const QImage wanted(folder.filePath(base + ".png"));
    if (wanted.isNull()) continue;
    const auto file =
        terramark::files::RegularFile::Open(folder.filePath(name).toStdString()).value();
    const auto picture = terramark::pictures::LoadPictureFile(file, wanted.width(), wanted.height())
                             .value_or(nullptr);
    QImage drawn;
    if (picture) {
      drawn = QImage(reinterpret_cast<const uchar*>(picture->Pixels.data()), picture->Width,
                     picture->Height, QImage::Format_RGB32);
    }
    if (argc > 2) drawn.save(QDir(QString::fromLocal8Bit(argv[2])).filePath(base + ".png"));
    const double score = PercentDifferent(drawn, wanted);
    const bool counts = std::find(argv + std::min(argc, 3), argv + argc, base) == argv + argc;
    if (counts) scores.push_back(score);
    std::printf("%7.2f %%  %s%s\n", score, qPrintable(base), counts ? "" : " (not counted)");
  }
  if (scores.empty()) return 1;
  std::sort(scores.begin(), scores.end());
  const auto good = std::count_if(scores.begin(), scores.end(), [](double s) { return s < 5; });
  std::printf("median %.2f %%, %td of %zu files under 5 %%\n", scores[scores.size() / 2], good,
              scores.size());
  return 0;
}
