#include "shell/filefault.h"

#include <algorithm>
#include <cstddef>

#include "forms/desktop.h"
#include "forms/geometry.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/filenames.h"
#include "shell/form1.h"

namespace terramark {

namespace {

constexpr char Ellipsis[] = "...";
/// So many characters of a path are always shown.
constexpr std::size_t MinPathChars = 24;
/// The bar never shows more characters.
constexpr std::size_t MaxPathChars = 500;

/// Keeps so many characters of a path around an ellipsis: first those of the file's name, then
/// those at both ends of the folders.
std::string ElidePath(const std::string& path, std::size_t kept) {
  const std::size_t folders = FolderLength(path);
  const std::size_t name = path.size() - folders;
  // If the name alone is too long, no folder is shown.
  const std::size_t from = kept < name ? folders : 0;
  const std::size_t slashAndName = std::min(kept, name + 1);
  const std::size_t tail = kept < name ? kept / 2 : std::max(kept / 2, slashAndName);
  return path.substr(from, kept - tail) + Ellipsis + path.substr(path.size() - tail);
}

/// As much of a path as fits into the message bar between the texts around it.
std::string ElideToFit(const Form1& form, const std::string& what, const std::string& path,
                       const std::string& rest) {
  constexpr int Borders = 2;
  const int room = forms::PixelBounds(form.Message).Width - Borders;
  const auto fits = [&](const std::string& shown) {
    return form.Host.MeasureText(what + shown + rest).Width <= room;
  };
  if (path.size() <= MinPathChars || fits(path)) return path;
  std::size_t kept = MinPathChars;
  std::size_t tooMany = std::min(path.size(), MaxPathChars);
  while (tooMany - kept > 1) {
    const std::size_t middle = (kept + tooMany) / 2;
    (fits(ElidePath(path, middle)) ? kept : tooMany) = middle;
  }
  return ElidePath(path, kept);
}

}  // namespace

void ShowFileFault(Form1& form, const std::string& what, const std::string& path,
                   const std::string& rest) {
  ShowMessage(form, what + ElideToFit(form, what, path, rest) + rest, ClrRed);
}

}  // namespace terramark
