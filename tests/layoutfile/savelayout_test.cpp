#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "layoutfile/layoutfolder.h"
#include "layoutfile/safefile.h"
#include "shell/colours.h"

namespace terramark {
namespace {

/// No file may grow beyond so many bytes, as on a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit tight{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_{};
  void (*const signal_)(int) = signal(SIGXFSZ, SIG_IGN);
};

/// Permissions bind, also where the tests run as root.
class PlainUser {
 public:
  PlainUser() { Become(geteuid() == 0 ? 65534 : geteuid()); }
  ~PlainUser() { Become(user_); }

 private:
  static void Become(uid_t user) { ASSERT_EQ(seteuid(user), 0); }
  const uid_t user_ = geteuid();
};

class SaveLayout : public LayoutFolder {
 public:
  SaveLayout() { LoadBytes(FileOf(TinyMap)); }
  void ExpectRed(const std::string& text) {
    EXPECT_EQ(form.Message.Caption.Get(), text);
    EXPECT_EQ(form.Message.BackColor, ClrRed);
  }
  bool Replace(const std::string& name, const std::string& text) {
    SafeFile file(Folder / name);
    return file.Open() && file.Replace(text);
  }
};

TEST_F(SaveLayout, AFaultOrACancelWritesNothing) {
  const auto before = Names();
  Save("*.tml");
  EXPECT_EQ(form.Message.Caption.Get(), "This map has no errors");
  Filters.clear();
  form.AreaRegion(2) = 0;
  Save("new.tml");
  ExpectRed("Area# 2 : Birch has no Region");
  EXPECT_TRUE(Filters.empty());
  EXPECT_EQ(Names(), before);
}

TEST_F(SaveLayout, HeaderAndSymbolsThatAreMissingAreFilledIn) {
  form.Text1.Text = "";
  form.AreaSymbol(1) = "9";
  for (std::int16_t i = 2; i <= 4; ++i) form.AreaSymbol(i).clear();
  Draws = {0.1F, 0.5F, 0.9F};
  Save("new.tml");
  auto lines = TinyMap;
  lines[0] = "MAP Layout File";
  lines[7][3] = 'G';
  lines[8][3] = 'H';
  lines[10][3] = 'S';
  EXPECT_EQ(Get("new.tml"), FileOf(lines));
  EXPECT_EQ(form.Text1.Text.Get(), lines[0]);
  EXPECT_EQ(form.AreaSymbol(3), "");
  EXPECT_EQ(Seeds.size(), 3U);
}

TEST_F(SaveLayout, AnAreaWithoutNeighboursCutsTheFile) {
  form.AreaLinks(5) = "0104";
  form.AreaLinks(6) = "00";
  Pictures.clear();
  Save("map.tml");
  auto lines = TinyMap;
  lines[11] = "5,\"H\",\"Elm\",\"0104\",1";
  lines[12] = "6,\"S\",\"Fir\",\"00\",2";
  EXPECT_EQ(Get("map.tml"), FileOf(lines, 16));
  ExpectRed("Area Fir has no neighbours");  // newer than the text about the picture
}

TEST_F(SaveLayout, ALostPictureIsSaidAndTheMapSaved) {
  Pictures.clear();
  Save("new.tml");
  EXPECT_EQ(Get("new.tml"), FileOf(TinyMap));
  ExpectRed("Cannot read picture " + TinyMap[3]);
}

TEST_F(SaveLayout, WhatCannotBeWrittenLeavesAllAsItWas) {
  form.Text1.Text = "";
  std::filesystem::create_directory(Folder / "folder");
  std::filesystem::create_symlink("ring", Folder / "ring");
  const auto before = Names();
  const FullDisk full(100);
  for (const char* name : {"folder", "nowhere/new.tml", "ring", "map.tml", "new.tml"}) {
    Save(name);
    ExpectRed(std::string("Cannot write Map Layout File ") + name);
    EXPECT_EQ(form.Text1.Text.Get(), "");
    EXPECT_EQ(form.LayoutFile, "map.tml");
    EXPECT_EQ(form.LoadMpa.Caption.Get(), "map.tml");
  }
  EXPECT_EQ(Get("map.tml"), FileOf(TinyMap));
  EXPECT_EQ(Names(), before);
}

TEST_F(SaveLayout, ReplacingKeepsPermissionsAndLinks) {
  std::filesystem::create_directory(Folder / "inner");
  Put("inner/real.tml", "old");
  chmod((Folder / "inner/real.tml").c_str(), 0604);
  std::filesystem::create_symlink("inner/real.tml", Folder / "link.tml");
  std::filesystem::create_symlink("fresh.tml", Folder / "dangling.tml");
  EXPECT_TRUE(Replace("link.tml", "new text"));
  EXPECT_TRUE(Replace("dangling.tml", "first"));
  struct stat real {};
  EXPECT_EQ(lstat((Folder / "link.tml").c_str(), &real), 0);
  EXPECT_TRUE(S_ISLNK(real.st_mode));
  EXPECT_EQ(stat((Folder / "link.tml").c_str(), &real), 0);
  EXPECT_EQ(real.st_mode & 07777U, 0604U);
  EXPECT_EQ(Get("inner/real.tml"), "new text");
  EXPECT_EQ(Get("fresh.tml"), "first");
}

TEST_F(SaveLayout, AClosedFolderIsWrittenInPlaceAndAClosedFileNotAtAll) {
  Put("open.tml", "old text");
  Put("closed.tml", "old text");
  chmod((Folder / "open.tml").c_str(), 0666);
  chmod((Folder / "closed.tml").c_str(), 0444);
  chmod(Folder.c_str(), 0555);
  {
    const PlainUser user;
    EXPECT_TRUE(Replace("open.tml", "new"));
    EXPECT_FALSE(Replace("fresh.tml", "new"));
    EXPECT_FALSE(Replace("closed.tml", "new"));
    const FullDisk full(10);
    EXPECT_FALSE(Replace("open.tml", "much too long"));
  }
  chmod(Folder.c_str(), 0777);
  EXPECT_EQ(Get("open.tml"), "new");
  const PlainUser user;
  EXPECT_FALSE(Replace("closed.tml", "new"));
}

}  // namespace
}  // namespace terramark
