#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "layoutfile/layoutfolder.h"
#include "layoutfile/safefile.h"
#include "shell/colours.h"

namespace terramark {
namespace {

namespace fs = std::filesystem;

/// No file may grow beyond so many bytes, as on a full disk.
void LimitFiles(rlim_t bytes) {
  signal(SIGXFSZ, SIG_IGN);
  const rlimit limit{bytes, RLIM_INFINITY};
  EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
}

/// Permissions bind, also where the tests run as root.
struct PlainUser {
  PlainUser() { EXPECT_TRUE(Before != 0 || seteuid(65534) == 0); }
  ~PlainUser() { EXPECT_EQ(seteuid(Before), 0); }
  const uid_t Before = geteuid();
};

class SaveLayout : public LayoutFolder {
 public:
  SaveLayout() { LoadBytes(Tiny); }
  void ExpectRed(const std::string& text) {
    EXPECT_EQ(Form.Message.Caption.Get(), text);
    EXPECT_EQ(Form.Message.BackColor, ClrRed);
  }
  auto Files() { return std::distance(fs::directory_iterator(Folder), {}); }
  bool Replace(const std::string& name, const std::string& text) {
    SafeFile file(Folder / name);
    return file.Open() && file.Replace(text);
  }
};

TEST_F(SaveLayout, AFaultAsksForNoName) {
  Filters.clear();
  Form.AreaRegion(2) = 0;
  EXPECT_EQ(Saved("new.tml"), "");
  ExpectRed("Area# 2 : Birch has no Region");
  EXPECT_TRUE(Filters.empty());
}

TEST_F(SaveLayout, HeaderAndSymbolsThatAreMissingAreFilledIn) {
  Form.Text1.Text = "";
  Form.AreaSymbol(1) = "9";
  for (std::int16_t i = 2; i <= 4; ++i) Form.AreaSymbol(i).clear();
  Draws = {0.1F, 0.5F, 0.9F};
  Form.MarkCount = 1;
  EXPECT_EQ(Saved("new.tml"), TinyWith({{1, "MAP Layout File"},
                                        {8, "2,\"G\",\"Birch\",\"020103\",0"},
                                        {9, "3,\"H\",\"Cedar\",\"020204\",3"},
                                        {11, "4,\"S\",\"Dale\",\"020305\",2"}}));
  EXPECT_EQ(Form.Text1.Text.Get(), "MAP Layout File");
  EXPECT_EQ(Form.AreaSymbol(3), "");
  EXPECT_EQ(Form.MarkCount, 0);
}

TEST_F(SaveLayout, ALostPictureIsSaidUnlessTheWritingStops) {
  Pictures.clear();
  EXPECT_EQ(Saved("new.tml"), Tiny);
  ExpectRed("Cannot read picture " + TinyPicture);
  Form.AreaLinks(5) = "0104";
  Form.AreaLinks(6) = "00";
  EXPECT_EQ(Saved("map.tml"),
            TinyWith({{12, "5,\"H\",\"Elm\",\"0104\",1"}, {13, "6,\"S\",\"Fir\",\"00\",2"}}, 16));
  ExpectRed("Area Fir has no neighbours");
}

TEST_F(SaveLayout, WhatCannotBeWrittenLeavesAllAsItWas) {
  Form.Text1.Text = "";
  fs::create_directory(Folder / "folder");
  fs::create_symlink("ring", Folder / "ring");
  const auto files = Files();
  EXPECT_FALSE(Replace("ring", "text"));
  EXPECT_TRUE(fs::is_symlink(Folder / "ring"));
  LimitFiles(100);
  for (const std::string name : {"folder", "nowhere/new.tml", "ring", "new.tml", "map.tml"}) {
    EXPECT_EQ(Saved(name), name == "map.tml" ? Tiny : "");
    ExpectRed("Cannot write Map Layout File " + name);
    EXPECT_EQ(Form.Text1.Text.Get(), "");
    EXPECT_EQ(Form.LayoutFile, "map.tml");
    EXPECT_EQ(Form.LoadMpa.Caption.Get(), "map.tml");
  }
  LimitFiles(RLIM_INFINITY);
  EXPECT_EQ(Files(), files);
}

TEST_F(SaveLayout, ReplacingKeepsPermissionsAndLinks) {
  fs::create_directory(Folder / "inner");
  Put("inner/real.tml", "old");
  fs::permissions(Folder / "inner/real.tml", fs::perms(0604));
  fs::create_symlink("inner/real.tml", Folder / "link.tml");
  fs::create_symlink("fresh.tml", Folder / "dangling.tml");
  EXPECT_TRUE(Replace("link.tml", "new text"));
  EXPECT_TRUE(Replace("dangling.tml", "first"));
  EXPECT_TRUE(fs::is_symlink(Folder / "link.tml"));
  EXPECT_EQ(fs::status(Folder / "link.tml").permissions(), fs::perms(0604));
  EXPECT_EQ(BytesOf(Folder / "inner/real.tml"), "new text");
  EXPECT_EQ(BytesOf(Folder / "fresh.tml"), "first");
}

TEST_F(SaveLayout, AClosedFolderIsWrittenInPlaceAndAClosedFileNotAtAll) {
  Put("open.tml", "old text");
  Put("closed.tml", "old text");
  chmod((Folder / "open.tml").c_str(), 0666);
  chmod((Folder / "closed.tml").c_str(), 0444);
  for (const mode_t folder : {0777U, 0555U}) {
    chmod(Folder.c_str(), folder);
    const PlainUser user;
    EXPECT_FALSE(Replace("closed.tml", "new"));
  }
  {
    const PlainUser user;
    EXPECT_FALSE(Replace("fresh.tml", "new"));
    EXPECT_TRUE(Replace("open.tml", "new"));
    LimitFiles(10);
    EXPECT_FALSE(Replace("open.tml", "much too long"));
    LimitFiles(RLIM_INFINITY);
  }
  EXPECT_EQ(BytesOf(Folder / "open.tml"), "new");
  chmod(Folder.c_str(), 0777);
}

}  // namespace
}  // namespace terramark
