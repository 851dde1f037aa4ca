#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "files/pathof.h"
#include "files/regularfile.h"
#include "files/safefile.h"
#include "files/windows/extendedpath.h"
#include "support/temporaryfolder.h"

namespace terramark::files {
namespace {

namespace fs = std::filesystem;

std::string Save(const fs::path& path, const std::string& text) {
  SafeFile file(path);
  const auto done = file.Open().and_then([&] { return file.Replace(text); });
  return done ? "" : done.error().Description();
}

std::string Load(const fs::path& path) {
  const auto bytes = ReadRegularFile(path, 1000);
  return bytes ? *bytes : bytes.error().Description();
}

TEST(WindowsNames, AreTakenWholeOrRefusedBeforeAnythingIsOpened) {
  const std::string device = "it is no plain file";
  const std::string wrong = "a file cannot have this name";
  const struct {
    const wchar_t* Given;
    const wchar_t* Full;
    std::string Why;
  } cases[]{{LR"(C:\maps\first.bmp)", LR"(\\?\C:\maps\first.bmp)", ""},
            {L"C:/maps/../first.bmp", LR"(\\?\C:\first.bmp)", ""},
            {LR"(\\?\C:\maps\first.bmp)", LR"(\\?\C:\maps\first.bmp)", ""},
            {LR"(\\host\maps\first.bmp)", LR"(\\?\UNC\host\maps\first.bmp)", ""},
            {LR"(\\?\UNC\host\maps\first.bmp)", LR"(\\?\UNC\host\maps\first.bmp)", ""},
            {LR"(C:\maps\console.tml)", LR"(\\?\C:\maps\console.tml)", ""},
            {LR"(C:\maps\com10)", LR"(\\?\C:\maps\com10)", ""},
            {L"", nullptr, "no such file or directory"},
            {L"CON", nullptr, device},
            {LR"(C:\maps\nul.tml)", nullptr, device},
            {LR"(C:\maps\Aux .bmp)", nullptr, device},
            {LR"(C:\maps\lpt1)", nullptr, device},
            {L"C:\\maps\\COM\u00B2.x", nullptr, device},
            {L"conin$", nullptr, device},
            {LR"(\\.\PhysicalDrive0)", nullptr, device},
            {LR"(\\.\pipe\first)", nullptr, device},
            {LR"(\\?\GLOBALROOT\Device\Null)", nullptr, device},
            {LR"(\\host\PIPE\first)", nullptr, device},
            {LR"(\\?\UNC\host\mailslot\first)", nullptr, device},
            {LR"(\\host\\pipe\first)", nullptr, device},
            {LR"(C:\maps\first.bmp:hidden)", nullptr, wrong},
            {LR"(\\host\maps\first:hidden.tml)", nullptr, wrong}};
  for (const auto& [given, full, why] : cases) {
    const auto name = ExtendedPath(given);
    SCOPED_TRACE(fs::path(given).string());
    ASSERT_EQ(name.has_value(), full != nullptr);
    EXPECT_EQ(name.value_or(L""), full != nullptr ? full : L"");
    EXPECT_EQ(name ? "" : name.error().Description(), why);
  }
}

TEST(WindowsNames, MayBeLongAndInAllLetters) {
  const TemporaryFolder folder;
  // The standard library knows no long names.
  std::vector<std::wstring> folders{L"\\\\?\\" + folder.Path().native()};
  for (int i = 0; i < 3; ++i) {
    folders.push_back(folders.back() + L"\\" + std::wstring(100, L'd'));
    ASSERT_TRUE(CreateDirectoryW(folders.back().c_str(), nullptr));
  }
  const fs::path deep = folders.back().substr(4);
  const fs::path map = deep / PathOf("K\xC3\xB6ln \xE2\x82\xAC \xCE\xA9.tml");
  EXPECT_EQ(map.filename().native(), L"K\u00F6ln \u20AC \u03A9.tml");
  EXPECT_EQ(Save(map, "first"), "");
  EXPECT_EQ(Save(map, "second"), "");
  EXPECT_EQ(Load(map), "second");
  EXPECT_TRUE(CanOpenNamedFile(map, map.filename()));
  EXPECT_EQ(Save(deep, "x"), "it is a folder");
  EXPECT_EQ(Load(deep), "it is a folder");
  EXPECT_EQ(PathOf("a\xFFz").native(), L"a\uFFFDz");
  EXPECT_TRUE(DeleteFileW((L"\\\\?\\" + map.native()).c_str()));
  while (folders.size() > 1) {
    EXPECT_TRUE(RemoveDirectoryW(folders.back().c_str()));
    folders.pop_back();
  }
}

TEST(WindowsFiles, TellWhoHasThemOpenAndStayAsTheyAre) {
  const TemporaryFolder folder;
  const fs::path map = folder.Path() / "map.tml";
  ASSERT_EQ(Save(map, "old"), "");
  const auto hold = [&](DWORD share) {
    return CreateFileW(map.c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr);
  };
  for (const DWORD share : {0, FILE_SHARE_READ}) {
    const HANDLE held = hold(share);
    EXPECT_EQ(Save(map, "new"), "another program has the file open");
    EXPECT_EQ(Load(map), share == 0 ? "another program has the file open" : "old");
    CloseHandle(held);
  }
  const HANDLE held = hold(FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
  EXPECT_EQ(Save(map, "new"), "");
  CloseHandle(held);
  EXPECT_EQ(Load(map), "new");
  ASSERT_TRUE(SetFileAttributesW(map.c_str(), FILE_ATTRIBUTE_READONLY));
  EXPECT_EQ(Save(map, "x"), "the file is read-only");
  EXPECT_EQ(Load(map), "new");
  ASSERT_TRUE(SetFileAttributesW(map.c_str(), FILE_ATTRIBUTE_NORMAL));
  const fs::path rival = folder.Path() / "rival.tml";
  SafeFile late(rival);
  ASSERT_TRUE(late.Open());
  std::ofstream(rival) << "rival";
  EXPECT_EQ(late.Replace("late").error().Description(), "file exists");
  EXPECT_EQ(Load(rival), "rival");
  SafeFile alone(map);
  ASSERT_TRUE(alone.Open());
  ASSERT_TRUE(fs::remove(map));
  EXPECT_TRUE(alone.Replace("again"));
  EXPECT_EQ(Load(map), "again");
  EXPECT_TRUE(CanOpenNamedFile(LR"(C:\maps\first.tml)", L"\\\\?\\" + map.native()));
}

}  // namespace
}  // namespace terramark::files
