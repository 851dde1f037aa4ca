// An editor whose files lie in a folder of the test's own, and the map of six Areas in a chain.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "layoutfile/loadlayout.h"
#include "layoutfile/savelayout.h"
#include "shell/form1.h"
#include "shell/startup.h"
#include "support/scripteddesktop.h"

namespace terramark {

inline const std::vector<std::string> TinyMap{
    "Tiny map",
    "03-14-1999 21:05:07",
    "2,6",
    "C:\\MAPS\\TINY.BMP",
    "0,256,0,256,0,0,256,256,0,125,125,125",
    "1,3,255,0,0,\"North\",3",
    "1,\"G\",\"Ash\",\"0102\",2",
    "2,\"H\",\"Birch\",\"020103\",0",
    "3,\"S\",\"Cedar\",\"020204\",3",
    "2,3,0,0,255,\"South\",2",
    "4,\"G\",\"Dale\",\"020305\",2",
    "5,\"H\",\"Elm\",\"020406\",1",
    "6,\"S\",\"Fir\",\"0105\",2",
    "BRIDGES BETWEEN REGIONS",
    "3,\"0104\"",
    "4,\"0103\"",
    "0,\"  \"",
    "BLITZ",
    "1,\"02,02,03\"",
    "2,\"01,01\"",
    "3,\"02,02,01\"",
    "4,\"02,05,06\"",
    "5,\"01,04\"",
    "6,\"02,05,04\"",
    "BREAKS",
    "1,\"01,04,03\"",
    "2,\"01,03,04\"",
    "X,Y Coordinates for Areas",
    "15,15",
    "0,6,60",
    "1,40,30",
    "2,120,30",
    "3,200,30",
    "4,280,90",
    "5,360,150",
    "6,440,210",
    "X,Y Coordinates for Regions",
    "1,60,10",
    "2,300,40",
    "END OF MAP DEFINITION",
};

/// The first so many lines as a file holds them.
inline std::string FileOf(const std::vector<std::string>& lines, std::size_t count = 1000) {
  std::string bytes;
  for (std::size_t k = 0; k < std::min(count, lines.size()); ++k) bytes += lines[k] + "\r\n";
  return bytes;
}

class LayoutFolder : public testing::Test, public ScriptedDesktop {
 public:
  LayoutFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "layoutXXXXXX").string();
    Folder = mkdtemp(pattern.data());
    AddPicture(TinyMap[3]);
    Form_Load(form);
  }
  ~LayoutFolder() override { std::filesystem::remove_all(Folder); }

  std::filesystem::path NativePath(const std::string& path) override { return Folder / path; }

  void Put(const std::string& name, const std::string& bytes) {
    std::ofstream(Folder / name, std::ios::binary) << bytes;
  }
  std::string Get(const std::string& name) {
    std::ifstream file(Folder / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::set<std::string> Names() {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Folder)) {
      names.insert(entry.path().filename());
    }
    return names;
  }
  void AddPicture(const std::string& name) {
    Put(name, "a picture");
    Pictures[name] = BlankPicture(4, 3);
  }
  void Load(const std::string& name) {
    FileNames = {name};
    LoadMpa_MouseUp(form);
  }
  void LoadBytes(const std::string& bytes) {
    Put("map.tml", bytes);
    Load("map.tml");
  }
  void Save(const std::string& name) {
    FileNames = {name};
    SaveCFG_MouseUp(form);
  }

  std::filesystem::path Folder;
  Form1 form{*this};
};

}  // namespace terramark
