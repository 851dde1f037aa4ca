// An editor whose files lie in a folder of the test's own, with the map of six Areas in a chain.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>

#include "canvas/loadlayout.h"
#include "canvas/savelayout.h"
#include "shell/form1.h"
#include "shell/startup.h"
#include "support/markertext.h"
#include "support/scripteddesktop.h"
#include "support/temporaryfolder.h"
#include "support/tinylayout.h"

namespace terramark {

class LayoutFolder : public testing::Test, public ScriptedDesktop {
 public:
  LayoutFolder() {
    AddPicture(TinyPicture);
    Form_Load(Form);
  }

  std::string NativePath(const std::string& path) override { return FileOf(path).string(); }
  /// In the folder even where the name has a folder of its own.
  std::filesystem::path FileOf(std::string name) const {
    std::ranges::replace_if(
        name, [](char byte) { return byte == ':' || byte == '\\'; }, '-');
    return Folder / name;
  }

  void Put(const std::string& name, const std::string& bytes) {
    std::ofstream(FileOf(name), std::ios::binary) << bytes;
  }
  void AddPicture(const std::string& name) {
    Put(name, "a picture");
    Pictures[name] = BlankPicture(4, 3);
  }
  void Load(const std::string& name) {
    FileNames = {name};
    LoadMpa_MouseUp(Form);
  }
  void LoadBytes(const std::string& bytes) {
    Put("map.tml", bytes);
    Load("map.tml");
  }
  /// What the file of that name holds after a save.
  std::string Saved(const std::string& name) {
    FileNames = {name};
    SaveCFG_MouseUp(Form);
    return BytesOf(FileOf(name));
  }

  const std::string Tiny = TinyWith({});
  const std::string TinyPicture = "C:\\MAPS\\TINY.BMP";
  const TemporaryFolder Temporary;
  const std::filesystem::path& Folder = Temporary.Path();
  Form1 Form{*this};
};

}  // namespace terramark
