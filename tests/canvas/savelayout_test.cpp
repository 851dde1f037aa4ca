#include "shell/colours.h"
#include "support/layoutfolder.h"

namespace terramark {
namespace {

class SaveLayout : public LayoutFolder {
 public:
  SaveLayout() { LoadBytes(Tiny); }
  void ExpectRed(const std::string& text) {
    EXPECT_EQ(Form.Message.Caption.Get(), text);
    EXPECT_EQ(Form.Message.BackColor, ClrRed);
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
  ExpectRed("Cannot read picture " + TinyPicture + ": gone");
  Form.AreaLinks(5) = "0104";
  Form.AreaLinks(6) = "00";
  EXPECT_EQ(Saved("map.tml"),
            TinyWith({{12, "5,\"H\",\"Elm\",\"0104\",1"}, {13, "6,\"S\",\"Fir\",\"00\",2"}}, 16));
  ExpectRed("Area Fir has no neighbours");
}

/// Its NativePath leaves names that begin with "land" as they are.
class BareNames : public SaveLayout {
  std::string NativePath(const std::string& path) override {
    return path.starts_with("land") ? path : SaveLayout::NativePath(path);
  }
};

TEST_F(BareNames, APictureThatTheLayoutWillNotFindIsSaid) {
  const struct {
    std::string Picture, File, Said;
  } cases[]{{"land.bmp", "x", "The picture land.bmp does not lie beside this layout"},
            {"land.bmp", "land.bmp", ""},
            {"land/land.bmp", "x", "The picture land.bmp does not lie beside this layout"},
            {"land,2.bmp", "land,2.bmp", "The picture land does not lie beside this layout"},
            {TinyPicture, "x", ""}};
  for (const auto& [picture, file, said] : cases) {
    std::filesystem::remove(Folder / "land.bmp");
    Put(file, "a picture");
    Pictures[picture] = BlankPicture(4, 3);
    Form.PictureFile = picture;
    Form.Helpbar.Caption = "";
    EXPECT_NE(Saved("new.tml"), "");
    EXPECT_EQ(Form.Helpbar.Caption.Get(), said) << picture << " " << file;
    EXPECT_EQ(Form.Message.Caption.Get(), "");
  }
}

}  // namespace
}  // namespace terramark
