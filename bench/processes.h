// What the benchmarks of whole processes share: a run of this program in a fresh process, the
// memory and time of one, and a large picture to load.
#pragma once

#include <sys/resource.h>

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace terramark {

/// The figures that a fresh process of this program prints when it gets these arguments.
inline std::vector<double> RunAnew(const QStringList& arguments) {
  QProcess process;
  process.start("/proc/self/exe", arguments);
  if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit ||
      process.exitCode() != 0) {
    qFatal("a run with %s failed: %s", qPrintable(arguments.join(' ')),
           process.readAllStandardError().constData());
  }
  std::istringstream printed(process.readAllStandardOutput().toStdString());
  std::vector<double> figures;
  for (double figure = 0; printed >> figure;) figures.push_back(figure);
  return figures;
}

/// The kilobytes that the system gives under this name, such as VmHWM, the peak since the program
/// began. That of getrusage would begin with the memory of the program that started this one.
inline double StatusKilobytes(const std::string& name) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(name + ":")) return std::stod(line.substr(name.size() + 1));
  }
  qFatal("the system does not tell %s", name.c_str());
}

/// What the program has used of the processor so far.
inline double CpuSeconds() {
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return seconds(used.ru_utime) + seconds(used.ru_stime);
}

/// A bitmap of 24 bits a pixel, in a folder that goes with it. It has just been written, so that
/// reading it takes no disk.
class LargeBitmap {
 public:
  static constexpr int Side = 4096;

  LargeBitmap() {
    QImage image(Side, Side, QImage::Format_RGB32);
    for (int y = 0; y < Side; ++y) {
      auto* const row = reinterpret_cast<QRgb*>(image.scanLine(y));
      for (int x = 0; x < Side; ++x) row[x] = qRgb(x, y, x ^ y);
    }
    if (!image.save(Path)) qFatal("cannot write %s", qPrintable(Path));
  }

  const QTemporaryDir Folder;
  const QString Path = Folder.filePath("large.bmp");
};

}  // namespace terramark
