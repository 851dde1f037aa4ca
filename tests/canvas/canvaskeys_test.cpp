#include <gtest/gtest.h>

#include "support/editortest.h"

namespace terramark {
namespace {

using namespace forms;

/// Three Areas and two Regions, and the keyboard on the map.
class CanvasKeysTest : public EditorTest {
 protected:
  CanvasKeysTest() {
    MakeMap(3, 2);
    Form.Focus(&Form.Picture1);
    Form.Picture1.CursorItem = nullptr;
  }

  bool OnMap() const { return Form.ActiveControl() == &Form.Picture1; }
  std::string CursorItem() const {
    const Control* const ringed = Form.Picture1.CursorItem;
    return ringed == nullptr ? "none" : NameOf(*ringed);
  }
  /// Rings a marker of the walk, by its number in it.
  void Ring(int number) {
    Key(KeyHome);
    for (int i = 1; i < number; ++i) Key(KeyRightArrow);
  }
};

TEST_F(CanvasKeysTest, WalksOverTheMarkersWithoutSelecting) {
  const std::string before = Selected();
  const struct {
    std::int16_t Key;
    const char* CursorItem;
    const char* Helpbar;
  } steps[]{{KeyLeftArrow, "Continent2", " 2:  Region 2"},
            {KeyRightArrow, "ArmyAt1", " 1: Area 1 in Region *UNKNOWN*"},
            {KeyRightArrow, "ArmyAt2", " 2: Area 2 in Region *UNKNOWN*"},
            {KeyEnd, "Continent2", " 2:  Region 2"},
            {KeyLeftArrow, "Continent1", " 1:  Region 1"},
            {KeyLeftArrow, "ArmyAt3", " 3: Area 3 in Region *UNKNOWN*"},
            {KeyHome, "ArmyAt1", " 1: Area 1 in Region *UNKNOWN*"}};
  for (const auto& [key, ringed, helpbar] : steps) {
    Key(key);
    EXPECT_EQ(CursorItem(), ringed);
    EXPECT_EQ(Form.Helpbar.Caption.Get(), helpbar);
  }
  EXPECT_EQ(Selected(), before);
  EXPECT_TRUE(OnMap());
  Form.ArmyAt.Unload(1);
  EXPECT_EQ(CursorItem(), "none");
}

TEST_F(CanvasKeysTest, PressesWhatIsRingedAsTheMouseWould) {
  Ring(2);
  Key(KeySpace, ShiftKey);
  EXPECT_EQ(Selected(), "A0 R0 1 .o. ..");
  Key(KeyC);
  Key(KeyMenu);
  EXPECT_EQ(Form.ArmyAt(2).Caption.Get(), " 2^");
  Ring(5);
  Key(KeySpace);
  EXPECT_EQ(Selected(), "A0 R2 1 ... .*");
  EXPECT_TRUE(OnMap()) << "a Region leaves the keyboard where it is";
  // Under all others of a heap.
  Form.ArmyAt(3).Move(Form.ArmyAt(1).Left, Form.ArmyAt(1).Top);
  Ring(1);
  Form.KeyPressed({KeySpace, 0});
  EXPECT_EQ(Selected(), "A1 R0 1 *.. ..");
  EXPECT_EQ(Form.ActiveControl(), &Form.EditText);
  EXPECT_TRUE(Form.KeyPressed({KeySpace, 0, true})) << "the held key writes no blanks";
  Form.KeyReleased({KeySpace, 0});
  EXPECT_FALSE(Form.KeyPressed({KeySpace, 0}));
  Key(KeyF6);
  EXPECT_EQ(CursorItem(), "ArmyAt1");
  Key(KeyUpArrow);
  EXPECT_EQ(Selected(), "A2 R0 1 .*. ..") << "up and down walk the selection";
  EXPECT_EQ(CursorItem(), "ArmyAt2");
  Key(KeyF6);
  Key(KeyEscape);
  EXPECT_EQ(Selected(), "A0 R0 0 ... ..");
  Key(KeyF6);
  Key(KeyReturn, CtrlKey);
  EXPECT_EQ(Marker(Form.ArmyAt(4)), "+4 at 273,138 ffffff plain");
  EXPECT_EQ(CursorItem(), "ArmyAt4");
}

TEST_F(CanvasKeysTest, CarriesAMarkerByPixelsAndPutsItDownOrBack) {
  Click(Form.ArmyAt(1));
  const std::string before = Selected();
  Key(KeyF6);
  const auto carry = [&] {
    Key(KeyReturn);
    for (const std::int16_t key : {KeyRightArrow, KeyRightArrow, KeyDownArrow}) Key(key);
    Key(KeyUpArrow, ShiftKey);
  };
  const float left = Form.ArmyAt(1).Left + 0.5F;
  const float top = Form.ArmyAt(1).Top;
  Form.ArmyAt(1).Left = left;
  Form.ArmyAt(2).Move(left + 2, top - 9);
  carry();
  EXPECT_EQ(Form.ArmyAt(1).Left.Get(), left) << "in the air";
  Key(KeyReturn);
  EXPECT_EQ(Form.ArmyAt(1).Left.Get(), left + 2) << "also over another marker";
  EXPECT_EQ(Form.ArmyAt(1).Top.Get(), top - 9);
  const std::pair<const char*, std::function<void()>> ends[]{
      {"Escape", [&] { Key(KeyEscape); }},
      {"the keyboard goes", [&] { Key(KeyF6); }},
      {"and comes back", [&] { Key(KeyF6), Key(KeyF6); }},
      {"a press of the mouse", [&] {
         Press({620, 440}), Release({620, 440});
       }}};
  const auto down = {KeyRightArrow, KeyUpArrow, KeyHome};
  for (const auto& [end, act] : ends) {
    Form.Focus(&Form.Picture1);
    carry();
    for (const std::int16_t key : down) Form.KeyPressed({key, 0});
    act();
    Form.Helpbar.Caption = "";
    for (const std::int16_t key : down) EXPECT_TRUE(Form.KeyPressed({key, 0, true})) << end;
    for (const std::int16_t key : down) Form.KeyReleased({key, 0});
    EXPECT_EQ(CursorItem() + Form.Helpbar.Caption.Get(), "ArmyAt1") << end;
    EXPECT_FALSE(Form.Pointer.CurrentDrag()) << end;
    EXPECT_EQ(Form.ArmyAt(1).Left.Get(), left + 2) << end;
    EXPECT_EQ(Selected(), before) << end;
  }
  Form.Focus(&Form.Picture1);
  Form.ArmyAt(1).Move(-30000, 5000);
  Form.KeyPressed({KeyDownArrow, 0});
  Key(KeyReturn);
  Form.KeyReleased({KeyDownArrow, 0});
  Key(KeyHome);
  Form.KeyPressed({KeyLeftArrow, 0});
  for (int i = 0; i < 3; ++i) {
    Key(KeyReturn);
    Form.KeyPressed({KeyLeftArrow, 0, true});
    EXPECT_EQ(CursorItem(), "ArmyAt1");
  }
  EXPECT_EQ(Form.ArmyAt(1).Left.Get(), 272) << "brought back to the middle, and one to the left";
}

TEST_F(CanvasKeysTest, LeavesAloneWhatIsHidden) {
  Form.Picture1.Picture = BlankPicture(2000, 1000);
  Click(Form.ArmyAt(2));
  Form.ArmyAt(3).Move(1500, 700);
  Form.ArmyAt(3).Visible = false;
  Key(KeyUpArrow);
  Hover(Form.ArmyAt(1));
  Key(KeyF6);
  const std::string before = Selected() + Area(3);
  for (const std::int16_t key : {KeySpace, KeyC, KeyMenu, KeyReturn}) {
    for (const std::int16_t shift : {std::int16_t{0}, ShiftKey}) Key(key, shift);
    EXPECT_EQ(Selected() + Area(3), before) << key;
    EXPECT_TRUE(OnMap() && !Form.Pointer.CurrentDrag() && Form.Picture1.ScrollLeft == 0) << key;
  }
  EXPECT_EQ(CursorItem() + Form.Helpbar.Caption.Get(), "ArmyAt3 1: Area 1 in Region *UNKNOWN*");
}

TEST_F(CanvasKeysTest, WhatTheKeysComeToIsScrolledIntoView) {
  Form.Picture1.Picture = BlankPicture(2000, 1000);
  PictureBox& box = Form.Picture1;
  Form.ArmyAt(3).Move(1500, 700);
  const auto seen = [&](const Control& marker) {
    const PixelRect part = MapToBox(box, PixelBounds(marker));
    return part.Left >= 24 && part.Top >= 24 && part.Left + part.Width <= box.ViewWidth() - 24 &&
           part.Top + part.Height <= box.ViewHeight() - 24;
  };
  Ring(3);
  EXPECT_TRUE(seen(Form.ArmyAt(3)));
  Key(KeyReturn);
  for (int i = 0; i < 30; ++i) Key(KeyUpArrow, ShiftKey);
  Key(KeyReturn);
  EXPECT_TRUE(seen(Form.ArmyAt(3))) << "carried";
  Click(Form.AddCont);
  EXPECT_TRUE(seen(Form.Continent(3))) << "a new one";
  Form.Continent(2).Move(1900, 900);
  Key(KeyDownArrow);
  EXPECT_TRUE(seen(Form.Continent(2))) << "walked to by selection";
  box.ScrollTo(0, 0);
  Key(KeyPageDown);
  Key(KeyPageDown, ShiftKey);
  EXPECT_EQ(box.ScrollTop.Get(), box.ViewHeight() - 32);
  EXPECT_EQ(box.ScrollLeft.Get(), box.ViewWidth() - 32);
  Key(KeySpace);
  EXPECT_TRUE(seen(Form.Continent(2))) << "pressed";
}

}  // namespace
}  // namespace terramark
