// What the most costly metafiles take that we could think of: the processor time until each is
// drawn or refused, as a multiple of the time that drawing may take.
#include <QGuiApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>

#include "files/threadtime.h"
#include "hostilefiles.h"
#include "metafile/metafileplayer.h"

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  double worst = 0;
  for (const auto& [what, bytes] : terramark::HostileFiles()) {
    const auto before = terramark::files::ThreadTime();
    const auto read = terramark::metafile::ReadMetafile(bytes);
    if (!read) qFatal("no metafile: %s", what);
    const auto drawn = terramark::metafile::PlayMetafile(*read, {546, 308});
    const std::chrono::duration<double> took = terramark::files::ThreadTime() - before;
    const std::chrono::duration<double> limit = terramark::metafile::MaxDrawingTime;
    worst = std::max(worst, took / limit);
    std::printf("%-52s %5.2f  %s\n", what, took / limit, drawn ? "drawn" : drawn.error().c_str());
  }
  std::printf("%-52s %5.2f\n", "the most costly", worst);
  return 0;
}
