// Shows a Map Layout as a small picture, for the lists of files on a desktop.
#include <charconv>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "canvas/showlayout.h"
#include "document/codepage.h"
#include "files/currentfolder.h"
#include "files/regularfile.h"
#include "files/safefile.h"
#include "layoutfile/layoutreader.h"
#include "paint/mapimage.h"
#include "paint/windowless.h"
#include "shell/backdrop.h"
#include "shell/clearmap.h"
#include "shell/filenames.h"
#include "shell/form1.h"
#include "shell/startup.h"
#include "thumbnail/ending.h"
#include "thumbnail/headlessdesktop.h"
#include "thumbnail/limits.h"

namespace terramark::thumbnail {
namespace {

constexpr int MaxSide = 1024;  // pixels

/// From 1 to MaxSide; nothing for any other text.
std::optional<int> ParseSide(const char* text) {
  int side = 0;
  const char* const end = text + std::strlen(text);
  const auto read = std::from_chars(text, end, side);
  if (read.ec != std::errc() || read.ptr != end || side < 1 || side > MaxSide) return {};
  return side;
}

/// Show makes the folder of the layout the current one, so paths must not depend on it.
std::filesystem::path Absolute(const char* path) {
  std::error_code failed;
  std::filesystem::path absolute = std::filesystem::absolute(path, failed);
  if (failed) Refuse("there is no file of this name");
  return absolute;
}

/// Writes the PNG, or ends the program. The map and the picture that it was made from are never
/// overwritten, whatever name leads to them.
void Write(const std::filesystem::path& png, std::string_view bytes,
           std::initializer_list<std::filesystem::path> sources) {
  const std::string cannot = "cannot write " + png.string() + ": ";
  for (const std::filesystem::path& source : sources) {
    std::error_code none;
    if (std::filesystem::equivalent(png, source, none)) {
      Refuse(cannot + "it is the layout or its picture");
    }
  }
  std::string why;
  {
    // Destroyed before the program ends, which removes its temporary file.
    files::SafeFile file(png);
    const auto written = file.Open().and_then([&] { return file.Replace(bytes); });
    if (written) return;
    why = written.error().Description();
    if (file.Damaged()) why += "; the old file is damaged";
  }
  Refuse(cannot + why);
}

/// The map in a layout; ends the program if there is none.
MapLayout Read(const std::filesystem::path& path) {
  const auto bytes = files::ReadRegularFile(path, MaxLayoutBytes);
  if (!bytes) Refuse("cannot open " + path.string() + ": " + bytes.error().Description());
  auto layout = ReadLayout(*bytes);
  if (!layout) {
    const LayoutFault& fault = layout.error();
    Refuse(path.string() + ":" + std::to_string(fault.Line) + ": " + fault.Description());
  }
  return *std::move(layout);
}

void Show(const std::filesystem::path& path, const std::filesystem::path& png, int side) {
  const MapLayout layout = Read(path);
  // The layout may have the picture's name without a folder: then the picture is in the layout's
  // folder.
  files::EnterFolderOf(path);
  const paint::Windowless windowless;
  HeadlessDesktop desktop;
  Form1 form(desktop);
  Form_Load(form);
  ClearMap(form);
  ShowHead(form, layout);
  PlaceMarkers(form, layout);
  if (const ShowResult shown = ShowMap(form); !shown) {
    Refuse("cannot read picture " + ToUtf8(form.PictureFile) + ": " + shown.error());
  }
  const auto bytes = paint::MapAsPng(form.Picture1, side);
  if (!bytes) Refuse("there is no picture to show");
  Write(png, *bytes, {path, FilePath(form, form.PictureFile)});
}

}  // namespace
}  // namespace terramark::thumbnail

int main(int argc, char** argv) {
  using namespace terramark::thumbnail;
  LimitCost();
  const auto side = argc == 4 ? ParseSide(argv[3]) : std::nullopt;
  if (!side) {
    std::fprintf(stderr, "usage: terramark-thumbnail LAYOUT PNG SIZE, a size from 1 to %d\n",
                 MaxSide);
    return UsageError;
  }
  Show(Absolute(argv[1]), Absolute(argv[2]), *side);
  return 0;
}
