// An editor whose files lie in a folder of the test's own, with the map of six Areas in a chain.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "canvas/loadlayout.h"
#include "canvas/savelayout.h"
#include "shell/form1.h"
#include "shell/startup.h"
#include "support/markertext.h"
#include "support/scripteddesktop.h"
#include "support/tinylayout.h"

namespace terramark {

class LayoutFolder : public testing::Test, public ScriptedDesktop {
 public:
  LayoutFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "layoutXXXXXX").string();
    Folder = mkdtemp(pattern.data());
    AddPicture(TinyPicture);
    Form_Load(Form);
  }
  ~LayoutFolder() override {
    std::error_code ignored;
    std::filesystem::remove_all(Folder, ignored);
  }

  std::string NativePath(const std::string& path) override { return Folder / path; }

  void Put(const std::string& name, const std::string& bytes) {
    std::ofstream(Folder / name, std::ios::binary) << bytes;
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
    return BytesOf(Folder / name);
  }

  const std::string Tiny = TinyWith({});
  const std::string TinyPicture = "C:\\MAPS\\TINY.BMP";
  std::filesystem::path Folder;
  Form1 Form{*this};
};

}  // namespace terramark
