// Shows a Map Layout as a small picture, for the lists of files on a desktop.
#include <charconv>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>

#include "layoutfile/loadlayout.h"
#include "layoutfile/safefile.h"
#include "pictures/cp1252.h"
#include "pictures/mapimage.h"
#include "pictures/windowless.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/startup.h"
#include "thumbnail/ending.h"
#include "thumbnail/limits.h"
#include "thumbnail/quietdesktop.h"

namespace terramark::thumbnail {
namespace {

constexpr int LongestSide = 1024;  // pixels

/// From 1 to LongestSide; nothing for any other text.
std::optional<int> SideOf(const char* text) {
  int side = 0;
  const char* const end = text + std::strlen(text);
  const auto read = std::from_chars(text, end, side);
  if (read.ec != std::errc() || read.ptr != end || side < 1 || side > LongestSide) return {};
  return side;
}

/// Reading a layout makes its folder the current one, so paths must not begin there.
std::filesystem::path Absolute(const char* path) {
  std::error_code failed;
  std::filesystem::path absolute = std::filesystem::absolute(path, failed);
  if (failed) Refuse("there is no file of this name");
  return absolute;
}

void Show(const std::filesystem::path& layout, const std::filesystem::path& png, int side) {
  const pictures::Windowless windowless;
  QuietDesktop desktop(layout);
  Form1 form(desktop);
  Form_Load(form);
  LoadMpa_MouseUp(form);
  if (form.Message.BackColor == ClrRed) {
    Refuse(pictures::InSystemEncoding(form.Message.Caption));
  }
  const auto bytes = pictures::MapAsPng(form.Picture1, side);
  if (!bytes) Refuse("there is no picture to show");
  SafeFile file(png);
  if (!file.Open() || !file.Replace(*bytes)) Refuse("cannot write " + png.string());
}

}  // namespace
}  // namespace terramark::thumbnail

int main(int argc, char** argv) {
  using namespace terramark::thumbnail;
  LimitCost();
  const auto side = argc == 4 ? SideOf(argv[3]) : std::nullopt;
  if (!side) {
    std::fprintf(stderr, "usage: terramark-thumbnail LAYOUT PNG SIZE, a size from 1 to %d\n",
                 LongestSide);
    return WrongUse;
  }
  Show(Absolute(argv[1]), Absolute(argv[2]), *side);
  return 0;
}
