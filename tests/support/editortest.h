// An editor on a scripted desktop, driven by the gestures of a user.
#pragma once

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "editor/handlers.h"
#include "forms/geometry.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/startup.h"
#include "support/markertext.h"
#include "support/scripteddesktop.h"

namespace terramark {

class EditorTest : public testing::Test {
 protected:
  EditorTest() {
    ConnectHandlers(Form);
    Form_Load(Form);
  }

  ScriptedDesktop Screen;
  Form1 Form{Screen};

  using Bits = std::int16_t;
  void Press(forms::PixelPoint at, Bits shift = 0, Bits button = forms::LeftButton) {
    Form.Pointer.Press(at.X, at.Y, button, shift);
  }
  void Release(forms::PixelPoint at, Bits shift = 0, Bits button = forms::LeftButton) {
    Form.Pointer.Release(at.X, at.Y, button, shift);
  }
  static std::string NameOf(const forms::Control& control) {
    return control.Name() + (control.Index() == 0 ? "" : std::to_string(control.Index()));
  }
  /// The middle of a control that the pointer can see, enabled or not; another one on top of it
  /// ends the test.
  forms::PixelPoint Grip(const forms::Control& control) const {
    const forms::PixelPoint at = CentreOnForm(control);
    const forms::Control& top = Form.Pointer.HoveredControlAt(at.X, at.Y);
    if (&top == &control) return at;
    throw std::logic_error(NameOf(control) +
                           (control.Visible ? " is covered by " : " is hidden; on top is ") +
                           NameOf(top));
  }
  /// Takes hold at a point, whatever is there, and lets go so many pixels away.
  void DragFrom(forms::PixelPoint at, int dx, int dy, Bits shift = 0,
                Bits button = forms::LeftButton) {
    Press(at, shift, button);
    Form.Pointer.Move(at.X + dx, at.Y + dy, shift);
    Release({at.X + dx, at.Y + dy}, shift, button);
  }
  /// Takes hold of a control in its middle.
  void Drag(const forms::Control& control, int dx, int dy, Bits shift = 0,
            Bits button = forms::LeftButton) {
    DragFrom(Grip(control), dx, dy, shift, button);
  }
  /// Gives what the message bar says then.
  std::string Click(const forms::Control& control, Bits shift = 0,
                    Bits button = forms::LeftButton) {
    Drag(control, 0, 0, shift, button);
    return Message();
  }
  void ShiftClick(const forms::Control& control) { Click(control, forms::ShiftKey); }
  /// A press and release so many pixels from where the inside of a container begins.
  void ClickInside(const forms::Control& container, int x, int y, Bits shift = 0) {
    const forms::PixelPoint origin = forms::InnerOrigin(container);
    DragFrom({origin.X + x, origin.Y + y}, 0, 0, shift);
  }
  std::string ClickMap(int x, int y, Bits shift = 0) {
    ClickInside(Form.Picture1, x, y, shift);
    return Message();
  }
  void Hover(const forms::Control& control) {
    const forms::PixelPoint at = CentreOnForm(control);
    Form.Pointer.Move(at.X, at.Y, 0);
  }
  void Key(std::int16_t code, Bits shift = 0) {
    Form.KeyPressed({code, shift});
    Form.KeyReleased({code, shift});
  }
  static void Replace(forms::TextBox& box, const std::string& text) {
    box.Edited(0, box.Text.Get().size(), text);
  }
  /// Replaces a box's text key by key, as if all of it had been selected.
  void Type(forms::TextBox& box, const std::string& text) {
    Form.Focus(&box);
    for (std::size_t length = text.empty() ? 0 : 1; length <= text.size(); ++length) {
      Form.KeyPressed({0, 0});
      Form.CharacterTyped();
      Replace(box, text.substr(0, length));
      Form.KeyReleased({0, 0});
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
  /// Presses Delete and answers Yes, and gives what the message bar says then.
  std::string Delete() {
    Screen.Answers = {forms::Answer::Yes};
    Click(Form.DelControl);
    Screen.Answers.clear();
    return Message();
  }
  /// Makes a link on both sides, by selecting one and marking the other.
  void Link(std::int16_t a, std::int16_t b) {
    Click(Form.ArmyAt(a));
    ShiftClick(Form.ArmyAt(b));
    Click(Form.MakeNeibor);
  }
  void Mark(std::initializer_list<std::int16_t> areas) {
    for (const std::int16_t i : areas) ShiftClick(Form.ArmyAt(i));
  }
  void SetRegion(std::int16_t region, std::initializer_list<std::int16_t> areas) {
    Click(Form.Continent(region));
    Mark(areas);
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
  /// What is selected: "A3 R0 3 .o*o.. ..", the current numbers, the count of marks, and a look for
  /// each Area and each Region: "." plain, "*" current, "o" marked.
  std::string Selected() const {
    std::string all = "A" + std::to_string(Form.CurArea) + " R" + std::to_string(Form.CurRegion) +
                      " " + std::to_string(Form.MarkCount) + " ";
    const auto look = [&](const forms::Label& marker) {
      all += ".*o"[static_cast<int>(MarkerStateOf(marker))];
    };
    for (std::int16_t i = 1; i <= Form.AreaCount; ++i) look(Form.ArmyAt(i));
    all += ' ';
    for (std::int16_t r = 1; r <= Form.RegionCount; ++r) look(Form.Continent(r));
    return all;
  }
  /// The inspector: "North/-/12", name, card symbol and armies, a "-" for an empty disabled box.
  std::string Inspector() const {
    const auto box = [](const forms::TextBox& of) {
      return of.Text.Get().empty() && !of.Enabled ? std::string("-") : of.Text.Get();
    };
    return box(Form.EditText) + "/" + box(Form.Symb) + "/" + box(Form.Armypc);
  }
  /// All there is of an Area: "Area 3 [020204] 2 R1 +3 at 100,24 ffffff plain".
  std::string Area(std::int16_t i) const {
    return Form.AreaName(i) + " [" + Form.AreaLinks(i) + "] " + Form.AreaSymbol(i) + " R" +
           std::to_string(Form.AreaRegion(i)) + " " + Marker(Form.ArmyAt(i));
  }
  /// All there is of a Region: "West 5 armies 10,20,256 West at 480,4 ff140a plain".
  std::string Region(std::int16_t r) const {
    const Components& rgb = Form.RegionRGB(r);
    return Form.RegionName(r) + " " + std::to_string(Form.RegionArmies(r)) + " armies " +
           std::to_string(rgb[0]) + "," + std::to_string(rgb[1]) + "," + std::to_string(rgb[2]) +
           " " + Marker(Form.Continent(r));
  }
  /// The message bar, with "red: " before a fault.
  std::string Message() const {
    return (Form.Message.BackColor == ClrRed ? "red: " : "") + Form.Message.Caption.Get();
  }
};

/// It begins with the map of MakeChain.
class ChainTest : public EditorTest {
 protected:
  ChainTest() { MakeChain(); }
};

}  // namespace terramark
