#include "shell/form1.h"

#include <array>

#include "shell/colours.h"
#include "shell/controltable.h"

namespace terramark {

namespace {

using Row = ControlRow<Form1>;

// In tab order; places and sizes in twips.
// clang-format off
constexpr std::array<Row, 42> Form1Controls{{
    // control                        name          i  caption                inside                 left   top width height
    {The<&Form1::Text1>,            "Text1",      0, "",                    Itself,                   0,    0, 8175,  315},
    {The<&Form1::Picture1>,         "Picture1",   0, "",                    Itself,                   0,  864, 8196, 4620},
    {The<&Form1::EditText>,         "EditText",   0, "",                    Itself,                   0,  288, 2145,  315},
    {The<&Form1::Symb>,             "Symb",       0, "",                    Itself,                2145,  288,  300,  315},
    {The<&Form1::Message>,          "Message",    0, "Label1",              Itself,                   0,  600, 8175,  270},
    {Element<&Form1::PlColor, 4>,   "PlColor",    4, "Continent",           The<&Form1::Frame3D1>,   60, 1260, 1100,  255},
    {Element<&Form1::PlColor, 3>,   "PlColor",    3, "Neutral",             The<&Form1::Frame3D1>,   60, 1005, 1100,  255},
    {Element<&Form1::PlColor, 2>,   "PlColor",    2, "Player3",             The<&Form1::Frame3D1>,   60,  750, 1100,  255},
    {Element<&Form1::PlColor, 1>,   "PlColor",    1, "Player2",             The<&Form1::Frame3D1>,   60,  495, 1100,  255},
    {Element<&Form1::Continent, 0>, "Continent",  0, "ContColors",          The<&Form1::Picture1>,  720, 2445, 1005,  240},
    {Element<&Form1::ArmyAt, 0>,    "ArmyAt",     0, "0",                   The<&Form1::Picture1>,   90,  900,  615,  210},
    {The<&Form1::Helpbar>,          "Helpbar",    0, "Label2",              Itself,                2835,  300, 5340,  300},
    {The<&Form1::Armypc>,           "Armypc",     0, "",                    Itself,                2445,  288,  390,  315},
    {Element<&Form1::Label1, 5>,    "Label1",     5, "Picture",             Itself,                  45, 6225, 2295,  210},
    {Element<&Form1::Label1, 2>,    "Label1",     2, "Map Layout",          Itself,                  45, 5610, 2295,  210},
    {The<&Form1::LoadMpa>,          "LoadMpa",    0, "Load a Map Layout",   Itself,                  48, 5820, 2295,  255},
    {The<&Form1::LoadMap>,          "LoadMap",    0, "Load A .WMF Picture", Itself,                  48, 6435, 2295,  255},
    {The<&Form1::Cvalid>,           "Cvalid",     0, "Validate Map",        Itself,                2430, 5580, 2295,  255},
    {The<&Form1::SaveCFG>,          "SaveCFG",    0, "Save a Map Layout",   Itself,                2430, 5865, 2295,  255},
    {The<&Form1::DelAll>,           "DelAll",     0, "Clear whole Map",     Itself,                2430, 6150, 2295,  255},
    {The<&Form1::TMHelp>,           "TMHelp",     0, "Help",                Itself,                8220,  375, 1215,  255},
    {The<&Form1::DBPush1>,          "DBPush1",    0, "About",               Itself,                2430, 6435, 2295,  255},
    {The<&Form1::RefMap>,           "RefMap",     0, "Refresh map",         Itself,                4770, 5580, 2295,  255},
    {The<&Form1::SwapTer>,          "SwapTer",    0, "Swap Territories",    Itself,                4770, 5865, 2295,  255},
    {The<&Form1::ClearLink>,        "ClearLink",  0, "Clear all Links",     Itself,                4770, 6150, 2295,  255},
    {The<&Form1::DelControl>,       "DelControl", 0, "Delete",              Itself,                4770, 6435, 2295,  255},
    {The<&Form1::AddTer>,           "AddTer",     0, "Add Area",            Itself,                7110, 5580, 2295,  255},
    {The<&Form1::AddCont>,          "AddCont",    0, "Add Region",          Itself,                7110, 5865, 2295,  255},
    {The<&Form1::MakeNeibor>,       "MakeNeibor", 0, "Set Neighbours",      Itself,                7110, 6150, 2295,  255},
    {The<&Form1::SetCont>,          "SetCont",    0, "Set Region",          Itself,                7110, 6435, 2295,  255},
    {The<&Form1::Frame1>,           "Frame1",     0, "Size",                Itself,                8220,  660, 1215, 1335},
    {Element<&Form1::Countx, 1>,    "Countx",     1, "",                    The<&Form1::Frame1>,     60,  930, 1080,  210},
    {Element<&Form1::Label1, 0>,    "Label1",     0, "Areas",               The<&Form1::Frame1>,     60,  240, 1080,  210},
    {Element<&Form1::Label1, 1>,    "Label1",     1, "Regions",             The<&Form1::Frame1>,     60,  720, 1080,  210},
    {Element<&Form1::Countx, 0>,    "Countx",     0, "",                    The<&Form1::Frame1>,     60,  450, 1080,  210},
    {The<&Form1::Frame3D1>,         "Frame3D1",   0, "Colours",             Itself,                8220, 2070, 1215, 1605},
    {The<&Form1::RGBFrame>,         "RGBFrame",   0, "RGB",                 Itself,                8220, 3750, 1215, 1695},
    {Element<&Form1::ColBar, 0>,    "ColBar",     0, "",                    The<&Form1::RGBFrame>,  120,  240,  204, 1284},
    {Element<&Form1::ColBar, 1>,    "ColBar",     1, "",                    The<&Form1::RGBFrame>,  510,  240,  200, 1284},
    {Element<&Form1::ColBar, 2>,    "ColBar",     2, "",                    The<&Form1::RGBFrame>,  840,  240,  200, 1284},
    {The<&Form1::Quit>,             "Quit",       0, "Exit",                Itself,                8220,   90, 1215,  255},
    {Element<&Form1::PlColor, 0>,   "PlColor",    0, "Player1",             The<&Form1::Frame3D1>,   60,  240, 1100,  255},
}};
// clang-format on

struct LabelRow {
  Row::Place Of;
  forms::Color BackColor;
  forms::Color ForeColor;
  forms::Border Border;
  forms::Alignment Alignment;
};

constexpr auto NoBorder = forms::Border::None;
constexpr auto Single = forms::Border::FixedSingle;
constexpr auto Centred = forms::Alignment::Centred;
constexpr forms::Color LightGrey = 0x00C0C0C0;

// clang-format off
constexpr std::array<LabelRow, 10> LabelLooks{{
    // label                         background        text                  border    alignment
    {Element<&Form1::Label1, 0>,     ClrBlack,         ClrWhite,             NoBorder, Centred},
    {Element<&Form1::Label1, 1>,     ClrBlack,         ClrWhite,             NoBorder, Centred},
    {Element<&Form1::Label1, 2>,     ClrBlack,         ClrWhite,             NoBorder, Centred},
    {Element<&Form1::Label1, 5>,     ClrBlack,         ClrWhite,             NoBorder, Centred},
    {Element<&Form1::Countx, 0>,     ClrGrey,          ClrWhite,             NoBorder, Centred},
    {Element<&Form1::Countx, 1>,     ClrGrey,          ClrWhite,             NoBorder, Centred},
    {The<&Form1::Helpbar>,           LightGrey,        forms::SysWindowText, Single,   Centred},
    {The<&Form1::Message>,           forms::SysWindow, forms::SysWindowText, Single,   Centred},
    {Element<&Form1::ArmyAt, 0>,     ClrBlack,         forms::SysWindowText, Single,   forms::Alignment::Left},
    {Element<&Form1::Continent, 0>,  forms::SysWindow, forms::SysWindowText, Single,   Centred},
}};
// clang-format on

struct HintRow {
  Row::Place Of;
  std::size_t MaxLength;  // 0 for no limit
  const char* ToolTipText;
};

// clang-format off
constexpr std::array<HintRow, 7> Hints{{
    // control                    most  tooltip
    {The<&Form1::Text1>,          0,    "Enter identification header for the Map Layout file"},
    {The<&Form1::EditText>,       16,   "Edit window for Area or Region name"},
    {The<&Form1::Symb>,           1,    "Set the Area Card Symbol (H=Horse,G=Cannon,S=Soldier)"},
    {The<&Form1::Armypc>,         2,    "Set the number of Armies for a Region"},
    {Element<&Form1::ColBar, 0>,  0,    "Adjust to set Red color"},
    {Element<&Form1::ColBar, 1>,  0,    "Adjust to set Green color"},
    {Element<&Form1::ColBar, 2>,  0,    "Adjust to set Blue color"},
}};
// clang-format on

}  // namespace

Form1::Form1(forms::Desktop& host) : Form(host) {
  Caption = "TERRAMARK 1";
  BackColor = LightGrey;
  Move(1170, 1830);
  Width = 12645;
  Height = 8985;
  BuildControls<Form1>(*this, Form1Controls);
  for (const LabelRow& row : LabelLooks) {
    auto& label = static_cast<forms::Label&>(row.Of(*this));
    label.BackColor = row.BackColor;
    label.ForeColor = row.ForeColor;
    label.BorderStyle = row.Border;
    label.Alignment = row.Alignment;
  }
  Continent(0).AutoSize = true;
  for (const HintRow& row : Hints) {
    forms::Control& control = row.Of(*this);
    control.ToolTipText = row.ToolTipText;
    if (control.Kind() == forms::ControlKind::TextBox) {
      static_cast<forms::TextBox&>(control).MaxLength = row.MaxLength;
    }
  }
  for (std::int16_t i = 0; i < 3; ++i) ColBar(i).Max = UnsetComponent;
}

}  // namespace terramark
