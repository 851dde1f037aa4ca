// Reports whether Map Layouts can be read, and what is wrong with them.
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "check/checklayout.h"
#include "files/commandline.h"

int main(int argc, char** argv) {
  using namespace terramark;
  using check::Severity;
  const std::vector<std::string> layouts = files::Arguments(argc, argv);
  if (layouts.empty()) {
    std::fputs("usage: terramark-check LAYOUT...\n", stderr);
    return static_cast<int>(Severity::Unreadable);
  }
  Severity worst = Severity::Good;
  // A full disk must not look like a result without faults.
  bool written = true;
  for (const std::string& layout : layouts) {
    const check::Report report = check::CheckLayout(layout);
    written = files::Print(check::FormatReport(layout, report)) && written;
    worst = std::max(worst, report.Worst);
  }
  return static_cast<int>(written ? worst : Severity::Unreadable);
}
