#include "shell/form1controls.h"

#include "shell/form1.h"

namespace terramark {

namespace {

/// In tab order; places and sizes in twips.
// clang-format off
constexpr ControlRow<Form1> Controls[] = {
    // control                      caption            help topic  inside                     left   top width height  tooltip, accessible name
    {ControlOf<&Form1::Text1>,      "",                    15, Itself,                         0,    0, 8175,  315, "Enter identification header for the Map Layout file", "Header of the Map Layout"},
    {ControlOf<&Form1::Picture1>,   "",                     0, Itself,                         0,  864, 8196, 4620, "", "Map"},
    {ControlOf<&Form1::EditText>,   "",                     0, Itself,                         0,  288, 2145,  315, "Edit window for Area or Region name", "Name of the Area or Region"},
    {ControlOf<&Form1::Symb>,       "",                    12, Itself,                      2145,  288,  300,  315, "Set the Area Card Symbol (H=Horse,G=Cannon,S=Soldier)", "Card symbol of the Area"},
    {ControlOf<&Form1::Message>,    "Label1",               0, Itself,                         0,  600, 8175,  270, "", "Message"},
    {Make<&Form1::PlColor, 4>,      "Continent",           14, ControlOf<&Form1::Frame3D1>,   60, 1260, 1100,  255},
    {Make<&Form1::PlColor, 3>,      "Neutral",             14, ControlOf<&Form1::Frame3D1>,   60, 1005, 1100,  255},
    {Make<&Form1::PlColor, 2>,      "Player3",             14, ControlOf<&Form1::Frame3D1>,   60,  750, 1100,  255},
    {Make<&Form1::PlColor, 1>,      "Player2",             14, ControlOf<&Form1::Frame3D1>,   60,  495, 1100,  255},
    {Make<&Form1::Continent, 0>,    "ContColors",           0, ControlOf<&Form1::Picture1>,  720, 2445, 1005,  240},
    {Make<&Form1::ArmyAt, 0>,       "0",                    0, ControlOf<&Form1::Picture1>,   90,  900,  615,  210},
    {ControlOf<&Form1::Helpbar>,    "Label2",               0, Itself,                      2835,  300, 5340,  300, "", "Help bar"},
    {ControlOf<&Form1::Armypc>,     "",                    16, Itself,                      2445,  288,  390,  315, "Set the number of Armies for a Region", "Armies of the Region"},
    {Make<&Form1::Label1, 5>,       "Picture",              0, Itself,                        45, 6225, 2295,  210},
    {Make<&Form1::Label1, 2>,       "Map Layout",           0, Itself,                        45, 5610, 2295,  210},
    {ControlOf<&Form1::LoadMpa>,    "Load a Map Layout",   15, Itself,                        48, 5820, 2295,  255},
    {ControlOf<&Form1::LoadMap>,    "Load A .WMF Picture", 15, Itself,                        48, 6435, 2295,  255},
    {ControlOf<&Form1::Cvalid>,     "Validate Map",         7, Itself,                      2430, 5580, 2295,  255},
    {ControlOf<&Form1::SaveCFG>,    "Save a Map Layout",   15, Itself,                      2430, 5865, 2295,  255},
    {ControlOf<&Form1::DelAll>,     "Clear whole Map",     15, Itself,                      2430, 6150, 2295,  255},
    {ControlOf<&Form1::TMHelp>,     "Help",                 2, Itself,                      8220,  375, 1215,  255},
    {ControlOf<&Form1::DBPush1>,    "About",                0, Itself,                      2430, 6435, 2295,  255},
    {ControlOf<&Form1::RefMap>,     "Refresh map",          8, Itself,                      4770, 5580, 2295,  255},
    {ControlOf<&Form1::SwapTer>,    "Swap Territories",    13, Itself,                      4770, 5865, 2295,  255},
    {ControlOf<&Form1::ClearLink>,  "Clear all Links",     10, Itself,                      4770, 6150, 2295,  255},
    {ControlOf<&Form1::DelControl>, "Delete",               9, Itself,                      4770, 6435, 2295,  255},
    {ControlOf<&Form1::AddTer>,     "Add Area",             9, Itself,                      7110, 5580, 2295,  255},
    {ControlOf<&Form1::AddCont>,    "Add Region",          11, Itself,                      7110, 5865, 2295,  255},
    {ControlOf<&Form1::MakeNeibor>, "Set Neighbours",      10, Itself,                      7110, 6150, 2295,  255},
    {ControlOf<&Form1::SetCont>,    "Set Region",          11, Itself,                      7110, 6435, 2295,  255},
    {ControlOf<&Form1::Frame1>,     "Size",                 0, Itself,                      8220,  660, 1215, 1335},
    {Make<&Form1::Countx, 1>,       "",                     0, ControlOf<&Form1::Frame1>,     60,  930, 1080,  210, "", "Regions"},
    {Make<&Form1::Label1, 0>,       "Areas",                0, ControlOf<&Form1::Frame1>,     60,  240, 1080,  210},
    {Make<&Form1::Label1, 1>,       "Regions",              0, ControlOf<&Form1::Frame1>,     60,  720, 1080,  210},
    {Make<&Form1::Countx, 0>,       "",                     0, ControlOf<&Form1::Frame1>,     60,  450, 1080,  210, "", "Areas"},
    {ControlOf<&Form1::Frame3D1>,   "Colours",             14, Itself,                      8220, 2070, 1215, 1605},
    {ControlOf<&Form1::RGBFrame>,   "RGB",                 14, Itself,                      8220, 3750, 1215, 1695},
    {Make<&Form1::ColBar, 0>,       "",                     0, ControlOf<&Form1::RGBFrame>,  120,  240,  204, 1284, "Adjust to set Red color", "Red"},
    {Make<&Form1::ColBar, 1>,       "",                     0, ControlOf<&Form1::RGBFrame>,  510,  240,  200, 1284, "Adjust to set Green color", "Green"},
    {Make<&Form1::ColBar, 2>,       "",                     0, ControlOf<&Form1::RGBFrame>,  840,  240,  200, 1284, "Adjust to set Blue color", "Blue"},
    {ControlOf<&Form1::Quit>,       "Exit",                 0, Itself,                      8220,   90, 1215,  255},
    {Make<&Form1::PlColor, 0>,      "Player1",             14, ControlOf<&Form1::Frame3D1>,   60,  240, 1100,  255},
};
// clang-format on

}  // namespace

std::span<const ControlRow<Form1>> Form1Controls() {
  return Controls;
}

}  // namespace terramark
