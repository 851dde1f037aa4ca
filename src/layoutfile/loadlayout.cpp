#include "layoutfile/loadlayout.h"

#include <cstddef>
#include <string>

#include "forms/regularfile.h"
#include "layoutfile/fieldreader.h"
#include "layoutfile/readmapfile.h"
#include "shell/clearmap.h"
#include "shell/filefault.h"
#include "shell/filenames.h"
#include "shell/form1.h"

namespace terramark {

namespace {

/// A hundred times what the largest map needs; of a longer file no more than this is read.
constexpr std::size_t MostBytes = 4U << 20U;

}  // namespace

void LoadMpa_MouseUp(Form1& form) {
  std::string name;
  form.CommonDialog1.Purpose = {.Title = "Load a Map Layout"};
  SelectAFile(form, LayoutFiles, name);
  if (name.empty()) return;
  const forms::RegularFile layout(form.Host.NativePath(name));
  const auto bytes = layout.Read(MostBytes);
  if (!bytes) {
    ShowFileFault(form, "Cannot open Map Layout File ", name, ": " + layout.Why());
    return;
  }
  form.LayoutFile = name;
  // The picture may be named by its bare name, and then lies where the layout does.
  form.Host.EnterFolderOf(name);
  ClearMap(form);
  FieldReader file(*bytes);
  ReadMapFile(form, file);
  form.LoadMpa.Caption = form.LayoutFile;
  form.Picture1.Refresh();
}

}  // namespace terramark
