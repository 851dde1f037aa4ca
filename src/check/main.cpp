// Reports whether Map Layouts can be read, and what is wrong with them.
#include <algorithm>
#include <cstdio>
#include <string>

#include "check/checklayout.h"

int main(int argc, char** argv) {
  using namespace terramark::check;
  if (argc < 2) {
    std::fputs("usage: terramark-check LAYOUT...\n", stderr);
    return static_cast<int>(Severity::Unreadable);
  }
  Severity worst = Severity::Good;
  for (int i = 1; i < argc; ++i) {
    const Report report = CheckLayout(argv[i]);
    const std::string lines = FormatReport(argv[i], report);
    std::fwrite(lines.data(), 1, lines.size(), stdout);
    worst = std::max(worst, report.Worst);
  }
  // A full disk must not look like a result without faults.
  const bool written = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
  return static_cast<int>(written ? worst : Severity::Unreadable);
}
