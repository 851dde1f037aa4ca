#include "layoutfile/loadlayout.h"

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include "layoutfile/fieldreader.h"
#include "layoutfile/readmapfile.h"
#include "shell/bars.h"
#include "shell/clearmap.h"
#include "shell/colours.h"
#include "shell/filenames.h"
#include "shell/form1.h"

namespace terramark {

namespace {

/// A hundred times what the largest map needs; of a longer file no more than this is read.
constexpr std::size_t MostBytes = 4U << 20U;

/// The bytes of a file; nothing when it cannot be opened or is no file at all.
std::optional<std::string> ReadBytes(const std::filesystem::path& path) {
  std::error_code fault;
  if (!std::filesystem::is_regular_file(path, fault)) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  if (!file.is_open()) return std::nullopt;
  std::string bytes;
  const auto size = std::filesystem::file_size(path, fault);
  bytes.resize(fault || size > MostBytes ? MostBytes : static_cast<std::size_t>(size));
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (file.bad()) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  return bytes;
}

}  // namespace

void LoadMpa_MouseUp(Form1& form) {
  std::string name;
  SelectAFile(form, "*.tml", name);
  if (name.empty()) return;
  const std::optional<std::string> bytes = ReadBytes(form.Host.NativePath(name));
  if (!bytes) {
    ShowMessage(form, "Cannot open Map Layout File " + name, ClrRed);
    return;
  }
  form.LayoutFile = name;
  ClearMap(form);
  FieldReader file(*bytes);
  ReadMapFile(form, file);
  form.LoadMpa.Caption = form.LayoutFile;
  form.Picture1.Refresh();
}

}  // namespace terramark
