// An editor on a scripted desktop, driven by the gestures of a user.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "editor/handlers.h"
#include "forms/geometry.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/startup.h"
#include "support/scripteddesktop.h"

namespace terramark {

class EditorTest : public testing::Test {
 protected:
  EditorTest() {
    JoinHandlers(Form);
    Form_Load(Form);
  }

  ScriptedDesktop Screen;
  Form1 Form{Screen};

  static forms::PixelPoint Middle(const forms::Control& control) {
    const forms::PixelPoint origin = forms::InnerOrigin(control);
    const forms::PixelRect bounds = forms::PixelBounds(control);
    return {origin.X + bounds.Width / 2, origin.Y + bounds.Height / 2};
  }

  void Press(forms::PixelPoint at, int shift = 0, int button = forms::LeftButton) {
    Form.Pointer.Press(at.X, at.Y, static_cast<std::int16_t>(button),
                       static_cast<std::int16_t>(shift));
  }
  void Release(forms::PixelPoint at, int shift = 0, int button = forms::LeftButton) {
    Form.Pointer.Release(at.X, at.Y, static_cast<std::int16_t>(button),
                         static_cast<std::int16_t>(shift));
  }
  void Click(const forms::Control& control, int shift = 0, int button = forms::LeftButton) {
    const forms::PixelPoint at = Middle(control);
    Press(at, shift, button);
    Release(at, shift, button);
  }
  void ShiftClick(const forms::Control& control) { Click(control, forms::ShiftKey); }
  /// A press and release on the backdrop, in pixels of the picture.
  void ClickMap(int x, int y, int shift = 0) {
    const forms::PixelPoint origin = forms::InnerOrigin(Form.Picture1);
    Press({origin.X + x, origin.Y + y}, shift);
    Release({origin.X + x, origin.Y + y}, shift);
  }
  /// Takes hold of a control in its middle and lets go so many pixels away.
  void Drag(const forms::Control& control, int dx, int dy, int shift = 0,
            int button = forms::LeftButton) {
    const forms::PixelPoint from = Middle(control);
    Press(from, shift, button);
    Form.Pointer.Move(from.X + dx, from.Y + dy, static_cast<std::int16_t>(shift));
    Release({from.X + dx, from.Y + dy}, shift, button);
  }
  void Hover(const forms::Control& control) {
    const forms::PixelPoint at = Middle(control);
    Form.Pointer.Move(at.X, at.Y, 0);
  }
  void Key(std::int16_t code) {
    Form.KeyPressed({code, 0});
    Form.KeyReleased({code, 0});
  }
  /// Replaces a box's text key by key, as if all of it had been selected.
  void Type(forms::TextBox& box, const std::string& text) {
    Form.Focus(&box);
    for (std::size_t length = text.empty() ? 0 : 1; length <= text.size(); ++length) {
      Form.KeyPressed({65, 0});
      Form.CharacterTyped();
      box.Typed(text.substr(0, length));
      Form.KeyReleased({65, 0});
    }
  }

  /// So many Areas on a grid by Ctrl-presses, and Regions by the button in a column beside it.
  void MakeMap(int areas, int regions) {
    for (int i = 0; i < areas; ++i) {
      ClickMap(10 + 45 * (i % 10), 40 + 26 * (i / 10), forms::CtrlKey);
    }
    for (int r = 0; r < regions; ++r) {
      Click(Form.AddCont);
      Form.Continent(static_cast<std::int16_t>(r + 1))
          .Move(480, static_cast<float>(4 + 18 * (r % 16)));
    }
    ClickMap(5, 300);
  }
  /// Makes a link on both sides, by selecting one and marking the other.
  void Link(std::int16_t a, std::int16_t b) {
    Click(Form.ArmyAt(a));
    ShiftClick(Form.ArmyAt(b));
    Click(Form.MakeNeibor);
  }
  void SetRegion(std::int16_t region, std::initializer_list<std::int16_t> areas) {
    Click(Form.Continent(region));
    for (const std::int16_t i : areas) ShiftClick(Form.ArmyAt(i));
    Click(Form.SetCont);
  }
  /// Six Areas in a chain, three in each of two Regions: a map that passes every rule.
  void MakeChain() {
    Screen.Pictures["map.bmp"] = BlankPicture(546, 308);
    Screen.FileNames.push_back("map.bmp");
    Click(Form.LoadMap);
    MakeMap(6, 2);
    SetRegion(1, {1, 2, 3});
    SetRegion(2, {4, 5, 6});
    for (std::int16_t i = 1; i < 6; ++i) Link(i, static_cast<std::int16_t>(i + 1));
    ClickMap(5, 300);
  }

  /// The link strings of the first so many Areas, with bars between them.
  std::string Links(std::int16_t areas) const {
    std::string all = Form.AreaLinks(1);
    for (std::int16_t i = 2; i <= areas; ++i) all += "|" + Form.AreaLinks(i);
    return all;
  }
  std::string Message() const { return Form.Message.Caption; }
  forms::Color MessageColour() const { return Form.Message.BackColor; }
  forms::Color Look(std::int16_t area) const { return Form.ArmyAt(area).BackColor; }
};

}  // namespace terramark
