#include "check/checklayout.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "document/codepage.h"
#include "files/regularfile.h"
#include "layoutfile/layoutreader.h"
#include "validation/rules.h"

namespace terramark::check {

namespace {

void Say(Report& report, int line, const std::string& text) {
  report.Remarks.push_back({line, Utf8Of(text)});
}

Report Unreadable(Report report, int line, const std::string& why) {
  report.Worst = Grade::Unreadable;
  Say(report, line, "cannot be read: " + why);
  return report;
}

/// Bare names begin in the folder of the layout, which the editor enters. Names of files are UTF-8,
/// as they are to the editor.
bool IsThere(const std::string& picture, const std::string& layout) {
  const auto folder = std::filesystem::path(layout).parent_path();
  return files::RegularFile::Open(folder / Utf8Of(picture)).has_value();
}

/// What is wrong with the picture's line, and where the reading goes on after it.
void CheckPicture(Report& report, LayoutReader& reader, const std::string& layout) {
  const std::string& picture = reader.Layout().PictureFile;
  const int line = reader.LineOfPicture();
  const bool cut = reader.PictureIsCut();
  if (cut) Say(report, line, "warning: a comma ends the path of the picture");
  if (picture.empty() || IsThere(picture, layout)) return;
  Say(report, line, "warning: the picture " + picture + " is not there");
  if (cut) reader.PassPictureLine();
}

/// What is lost in reading although the reading goes on.
void CheckLosses(Report& report, const LayoutReader& reader) {
  for (const int line : reader.LinesWithLoss()) {
    Say(report, line, "warning: a double quote ends a text before its end; the rest is lost");
  }
}

int LineAtFault(const Verdict& verdict, const LayoutReader& reader) {
  switch (verdict.About) {
    case Subject::Picture:
      return reader.LineOfPicture();
    case Subject::Counts:
      return reader.LineOfCounts();
    case Subject::Area:
      return reader.LineOfArea(verdict.Number);
    case Subject::Region:
      return reader.LineOfRegion(verdict.Number);
  }
  return 0;
}

void CheckRules(Report& report, const LayoutReader& reader) {
  const Verdict verdict = JudgeMap(reader.Layout());
  if (verdict.Status == 0) return;
  report.Worst = Grade::Faulty;
  Say(report, LineAtFault(verdict, reader), verdict.Message);
}

Report CheckBytes(std::string_view bytes, const std::string& layout) {
  Report report;
  LayoutReader reader(bytes, EmptyMap());
  const LayoutStep read = reader.ReadHead()
                              .map([&] { CheckPicture(report, reader, layout); })
                              .and_then([&] { return reader.ReadPlayerColours(); })
                              .and_then([&] { return reader.ReadMap(); });
  CheckLosses(report, reader);
  if (!read) return Unreadable(std::move(report), read.error().Line, read.error().Words());
  if (reader.AtEnd()) Say(report, reader.Line(), "warning: the file ends before its last line");
  CheckRules(report, reader);
  report.Areas = reader.Layout().AreaCount;
  report.Regions = reader.Layout().RegionCount;
  return report;
}

}  // namespace

Report CheckLayout(const std::string& path) {
  const auto bytes = files::ReadRegularFile(path, MostLayoutBytes);
  if (!bytes) return Unreadable({}, 0, bytes.error().Words());
  Report report = CheckBytes(*bytes, path);
  std::ranges::stable_sort(report.Remarks, {}, &Remark::Line);
  return report;
}

std::string LinesOf(const std::string& name, const Report& report) {
  if (report.Remarks.empty()) {
    return name + ": good, " + std::to_string(report.Areas) + " Areas, " +
           std::to_string(report.Regions) + " Regions\n";
  }
  std::string lines;
  for (const Remark& remark : report.Remarks) {
    lines += name + ":";
    if (remark.Line != 0) lines += std::to_string(remark.Line) + ":";
    lines += " " + remark.Text + "\n";
  }
  return lines;
}

}  // namespace terramark::check
