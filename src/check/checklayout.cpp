#include "check/checklayout.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <utility>

#include "document/codepage.h"
#include "document/numbers.h"
#include "files/pathof.h"
#include "files/regularfile.h"
#include "layoutfile/layoutreader.h"
#include "validation/rules.h"

namespace terramark::check {

namespace {

/// Without characters that could control a terminal or begin a new line.
std::string Printable(std::string text) {
  std::ranges::replace_if(
      text, [](unsigned char byte) { return byte < 0x20 || byte == 0x7F; }, '?');
  return text;
}

void AddDiagnostic(Report& report, int line, std::string text) {
  // The bytes that the code page leaves open would become control characters too.
  constexpr std::string_view Open = "\x81\x8D\x8F\x90\x9D";
  std::ranges::replace_if(
      text, [&](char byte) { return Open.find(byte) != std::string_view::npos; }, '?');
  report.Diagnostics.push_back({line, ToUtf8(Printable(std::move(text)))});
}

void AddUnreadable(Report& report, int line, const std::string& why) {
  report.Worst = Severity::Unreadable;
  AddDiagnostic(report, line, "cannot be read: " + why);
}

/// A name without a folder is in the folder of the layout, which the editor makes the current one.
/// File names are UTF-8, as in the editor.
bool PictureExists(const std::string& picture, const std::string& layout) {
  return files::CanOpenNamedFile(files::PathOf(layout), files::PathOf(ToUtf8(picture)));
}

/// Reports faults of the picture's line. Of a missing picture whose path a comma has ended the rest
/// of the line is skipped.
void CheckPicture(Report& report, LayoutReader& reader, const std::string& layout) {
  const std::string& picture = reader.Layout().PictureFile;
  const int line = reader.LineOfPicture();
  const bool cut = reader.PictureIsCut();
  if (cut) AddDiagnostic(report, line, "warning: a comma ends the path of the picture");
  if (picture.empty() || PictureExists(picture, layout)) return;
  AddDiagnostic(report, line, "warning: the picture " + picture + " is not there");
  if (cut) reader.SkipPictureLine();
}

/// Reports what is lost although the reading goes on.
void CheckTruncations(Report& report, const LayoutReader& reader) {
  for (const int line : reader.TruncatedLines()) {
    AddDiagnostic(report, line,
                  "warning: a double quote ends a text before its end; the rest is lost");
  }
}

/// Reports signs of missing or extra lines.
void CheckSteps(Report& report, const LayoutReader& reader) {
  if (reader.LineOfOddHeading() != 0) {
    AddDiagnostic(report, reader.LineOfOddHeading(),
                  std::string("warning: this is not the head ") + reader.UsualHeading() +
                      "; a line may be missing above, or be too much");
  }
  const MapLayout& map = reader.Layout();
  const std::string noPlace = " is given no place";
  for (std::int16_t i = 1; i <= map.AreaCount; ++i) {
    if (map.AreaMarkers(i).Place) continue;
    AddDiagnostic(report, reader.LineOfArea(i), "warning: Area" + NumberText(i) + noPlace);
  }
  for (std::int16_t r = 1; r <= map.RegionCount; ++r) {
    if (map.RegionMarkers(r).Place) continue;
    AddDiagnostic(report, reader.LineOfRegion(r), "warning: Region" + NumberText(r) + noPlace);
  }
  if (reader.AtEnd())
    AddDiagnostic(report, reader.Line(), "warning: the file ends before its last line");
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
  const Verdict verdict = CheckMap(reader.Layout());
  if (verdict.Status == 0) return;
  report.Worst = Severity::Faulty;
  AddDiagnostic(report, LineAtFault(verdict, reader), verdict.Message);
}

void CheckAll(Report& report, LayoutReader& reader, const std::string& path) {
  const LayoutResult read =
      reader.ReadHead()
          .map([&] { CheckPicture(report, reader, path); })
          .and_then([&] { return reader.ReadPlayerColours(); })
          .and_then([&] { return reader.ReadMap(); })
          .and_then([&] { return reader.CheckRange(UsualTwips, UsualTwips); });
  CheckTruncations(report, reader);
  if (!read) {
    AddUnreadable(report, read.error().Line, read.error().Description());
  } else {
    CheckSteps(report, reader);
    CheckRules(report, reader);
    report.Areas = reader.Layout().AreaCount;
    report.Regions = reader.Layout().RegionCount;
  }
}

}  // namespace

Report CheckLayout(const std::string& path) {
  const auto bytes = files::ReadRegularFile(files::PathOf(path), MaxLayoutBytes);
  if (bytes) return CheckBytes(*bytes, path);
  Report report;
  AddUnreadable(report, 0, bytes.error().Description());
  return report;
}

Report CheckBytes(std::string_view bytes, const std::string& path) {
  Report report;
  LayoutReader reader(bytes, EmptyMap());
  CheckAll(report, reader, path);
  std::ranges::stable_sort(report.Diagnostics, {}, &Diagnostic::Line);
  return report;
}

std::string FormatReport(const std::string& path, const Report& report) {
  const std::string name = Printable(path);
  if (report.Diagnostics.empty()) {
    return name + ": good, " + std::to_string(report.Areas) + " Areas, " +
           std::to_string(report.Regions) + " Regions\n";
  }
  std::string lines;
  for (const Diagnostic& remark : report.Diagnostics) {
    lines += name + ":";
    if (remark.Line != 0) lines += std::to_string(remark.Line) + ":";
    lines += " " + remark.Text + "\n";
  }
  return lines;
}

}  // namespace terramark::check
