#include "shell/form1.h"

#include "shell/colours.h"
#include "shell/form1controls.h"

namespace terramark {

namespace {

struct LabelRow {
  Finder<Form1, forms::Label> Locate;
  forms::Color BackColor;
  forms::Color ForeColor;
  forms::Border Border;
  forms::Alignment Alignment;
  Finder<Form1> LabelFor = nullptr;
};

constexpr auto NoBorder = forms::Border::None;
constexpr auto Single = forms::Border::FixedSingle;
constexpr auto Centred = forms::Alignment::Centred;
constexpr forms::Color LightGrey = 0x00C0C0C0;

// clang-format off
constexpr LabelRow LabelLooks[] = {
    // label                         background        text                  border    alignment, what it stands over
    {Element<&Form1::Label1, 0>,    ClrBlack,         ClrWhite,             NoBorder, Centred,                Element<&Form1::Countx, 0>},
    {Element<&Form1::Label1, 1>,    ClrBlack,         ClrWhite,             NoBorder, Centred,                Element<&Form1::Countx, 1>},
    {Element<&Form1::Label1, 2>,    ClrBlack,         ClrWhite,             NoBorder, Centred,                ControlOf<&Form1::LoadMpa>},
    {Element<&Form1::Label1, 5>,    ClrBlack,         ClrWhite,             NoBorder, Centred,                ControlOf<&Form1::LoadMap>},
    {Element<&Form1::Countx, 0>,    ClrGrey,          ClrWhite,             NoBorder, Centred},
    {Element<&Form1::Countx, 1>,    ClrGrey,          ClrWhite,             NoBorder, Centred},
    {ControlOf<&Form1::Helpbar>,    LightGrey,        forms::SysWindowText, Single,   Centred},
    {ControlOf<&Form1::Message>,    forms::SysWindow, forms::SysWindowText, Single,   Centred},
    {Element<&Form1::ArmyAt, 0>,    ClrBlack,         forms::SysWindowText, Single,   forms::Alignment::Left},
    {Element<&Form1::Continent, 0>, forms::SysWindow, forms::SysWindowText, Single,   Centred},
};
// clang-format on

struct LimitRow {
  Finder<Form1, forms::TextBox> Locate;
  std::size_t MaxLength;
};

constexpr LimitRow Limits[] = {
    {ControlOf<&Form1::EditText>, 16},
    {ControlOf<&Form1::Symb>, 1},
    {ControlOf<&Form1::Armypc>, 2},
};

}  // namespace

/// The markers have the same numbers as the tables.
static_assert(forms::ControlArray<forms::Label>::MaxElements == TableSize);

Form1::Form1(forms::Desktop& host) : Form(host, "Form1") {
  Caption = "TERRAMARK 1";
  BackColor = LightGrey;
  Move(1170, 1830);
  Width = 12645;
  Height = 8985;
  BuildControls(*this, Form1Controls());
  for (const LabelRow& row : LabelLooks) {
    forms::Label& label = row.Locate(*this);
    label.BackColor = row.BackColor;
    label.ForeColor = row.ForeColor;
    label.BorderStyle = row.Border;
    label.Alignment = row.Alignment;
    if (row.LabelFor != nullptr) label.LabelFor = &row.LabelFor(*this);
  }
  Message.Announcement = forms::Announcement::AtOnce;
  // Its text changes with every move of the mouse.
  Helpbar.Announcement = forms::Announcement::OnRequest;
  Continent(0).AutoSize = true;
  // Areas before Regions, as for the keyboard.
  ArmyAt(0).ListOrder = 1;
  Continent(0).ListOrder = 2;
  Picture1.TabStop = true;
  for (const LimitRow& row : Limits) row.Locate(*this).MaxLength = row.MaxLength;
  ColBar.ForEach([](forms::VScrollBar& bar) { bar.Max = UnsetComponent; });
}

}  // namespace terramark
