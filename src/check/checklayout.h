// Checks a file that should be a Map Layout, and reports what is wrong.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace terramark::check {

/// From the least to the worst; also the exit statuses of the program.
enum class Severity { Good = 0, Faulty = 1, Unreadable = 2 };

struct Diagnostic {
  /// From 1; 0 where no line is at fault.
  int Line = 0;
  /// UTF-8, ready to print.
  std::string Text;
};

struct Report {
  Severity Worst = Severity::Good;
  /// By line, including warnings; empty for a map without any.
  std::vector<Diagnostic> Diagnostics;
  std::int16_t Areas = 0;
  std::int16_t Regions = 0;
};

/// Reads the file as the editor does, but without its picture, and checks the map by the editor's
/// rules. If the picture does not exist, the editor stops after the head; here the rest is read
/// too, from the next line on where a comma has ended the picture's path. The path is UTF-8.
Report CheckLayout(const std::string& path);
/// The same for bytes that are, or would be, in a file with this path.
Report CheckBytes(std::string_view bytes, const std::string& path);

/// The lines of the report, each beginning with the file's name, with "?" for control characters.
std::string FormatReport(const std::string& path, const Report& report);

}  // namespace terramark::check
