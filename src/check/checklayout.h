// What there is to say of one file that is to be a Map Layout.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace terramark::check {

/// From what is least to what is worst; also the statuses of the program.
enum class Severity { Good = 0, Faulty = 1, Unreadable = 2 };

struct Diagnostic {
  /// From 1; 0 where no line shows it.
  int Line = 0;
  /// UTF-8, ready to print.
  std::string Text;
};

struct Report {
  Severity Worst = Severity::Good;
  /// By line, warnings among them; empty for a map of which there is nothing to say.
  std::vector<Diagnostic> Diagnostics;
  std::int16_t Areas = 0;
  std::int16_t Regions = 0;
};

/// Reads the file as the editor does, without its picture, and judges the map by the editor's
/// rules. A file whose picture is not there, of which the editor reads no more than the head, is
/// read on all the same, and then from the line behind the picture's, where a comma has ended the
/// path.
Report CheckLayout(const std::string& path);
/// The same of bytes that stand under this path, or would.
Report CheckBytes(std::string_view bytes, const std::string& path);

/// The lines that tell it, each with the file's name in front, control characters as "?".
std::string FormatReport(const std::string& path, const Report& report);

}  // namespace terramark::check
