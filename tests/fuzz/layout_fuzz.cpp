// Feeds arbitrary bytes to the reader of Map Layouts: whatever they hold, the document keeps its
// bounds, and a map that passes the rules can be written and read again.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "canvas/readmapfile.h"
#include "canvas/writemapfile.h"
#include "check/checklayout.h"
#include "document/links.h"
#include "shell/clearmap.h"
#include "shell/form1.h"
#include "shell/startup.h"
#include "support/scripteddesktop.h"
#include "validation/rules.h"

namespace terramark {
namespace {

void Check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", what);
  std::abort();
}

/// False when the file failed and the process would have ended.
bool Read(Form1& form, std::string_view bytes) {
  ClearMap(form);
  try {
    ReadMapFile(form, bytes);
    return true;
  } catch (const Ended&) {
    return false;
  }
}

void CheckMarkers(forms::ControlArray<forms::Label>& markers, std::int16_t count) {
  Check(count >= 0 && count <= LastNumber, "a count within the tables");
  for (std::int16_t i = 0; i <= LastNumber; ++i) {
    const forms::Label* marker = markers.Find(i);
    Check((marker != nullptr) == (i <= count), "a marker for every number, and no other");
    Check(marker == nullptr || (std::isfinite(marker->Left) && std::isfinite(marker->Top)),
          "a marker in a place");
  }
}

/// Whether a map can be read again whole: a text that the file has in quotes must hold none.
bool ComesBack(const Tables& map) {
  std::string quoted;
  bool linked = true;
  for (std::int16_t i = 1; i <= map.AreaCount; ++i) {
    quoted += map.AreaName(i) + map.AreaLinks(i);
    linked = linked && Neighbours(map.AreaLinks(i)).Count() != 0;
  }
  for (std::int16_t r = 1; r <= map.RegionCount; ++r) quoted += map.RegionName(r);
  return linked && quoted.find('"') == std::string::npos && CheckMap(map).Status == 0 &&
         map.PictureFile[0] != ' ' && map.PictureFile.find_first_of(",\"\r\n") == std::string::npos;
}

/// What the checker prints is lines that begin with the file's name, and nothing that a terminal
/// obeys. It reads what the window reads.
void CheckReport(std::string_view bytes, bool read) {
  const check::Report report = check::CheckBytes(bytes, "map.tml");
  const std::string lines = check::FormatReport("map.tml", report);
  const bool cut = lines.find("a comma ends the path") != std::string::npos;
  Check(cut || read == (report.Worst != check::Severity::Unreadable), "what the window reads");
  std::size_t begun = 0;
  for (std::size_t end; (end = lines.find('\n', begun)) != std::string::npos; begun = end + 1) {
    Check(lines.compare(begun, 8, "map.tml:") == 0, "a line with the file's name");
  }
  Check(begun == lines.size(), "lines that end");
  for (const char c : lines) Check(c == '\n' || static_cast<unsigned char>(c) >= ' ', "plain text");
}

void TryOne(Form1& form, const ScriptedDesktop& desktop, std::string_view bytes) {
  const bool read = Read(form, bytes);
  CheckReport(bytes, read);
  CheckMarkers(form.ArmyAt, form.AreaCount);
  CheckMarkers(form.Continent, form.RegionCount);
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    Check(form.AreaRegion(i) >= 0 && form.AreaRegion(i) <= form.RegionCount, "a Region in use");
  }
  if (!read) return;
  Check(desktop.Boxes.empty(), "a picture that is there");
  const std::string first = WriteMapFile(form).Text;
  if (!ComesBack(form)) return;
  Check(Read(form, first), "a good map that can be read again");
  // The first writing may have rounded a place; from there on nothing may change.
  const std::string second = WriteMapFile(form).Text;
  Check(Read(form, second) && WriteMapFile(form).Text == second, "a map that stays as it is");
}

}  // namespace
}  // namespace terramark

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static terramark::StockedDesktop desktop;
  static terramark::Form1 form(desktop);
  [[maybe_unused]] static const bool loaded = (terramark::Form_Load(form), true);
  terramark::TryOne(form, desktop, {reinterpret_cast<const char*>(data), size});
  desktop.Boxes.clear();
  desktop.Seeds.clear();
  return 0;
}
