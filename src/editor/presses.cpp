#include "editor/presses.h"

#include <array>

#include "canvas/refreshmap.h"
#include "commands/addmarkers.h"
#include "commands/clearlinks.h"
#include "commands/clearwhole.h"
#include "commands/deletemarkers.h"
#include "commands/setneighbours.h"
#include "commands/setregion.h"
#include "commands/swapareas.h"
#include "layoutfile/loadlayout.h"
#include "layoutfile/savelayout.h"
#include "shell/aboutform.h"
#include "shell/bars.h"
#include "shell/controltable.h"
#include "shell/form1.h"
#include "validation/cvalid.h"

namespace terramark {

namespace {

using Handler = void (*)(Form1&, const forms::MouseEvent&);

/// A command that does not look at the event.
template <void (*Command)(Form1&)>
void Plain(Form1& form, const forms::MouseEvent&) {
  Command(form);
}

/// The button that opens help without the Shift key.
void TMHelp_MouseUp(Form1& form) {
  ShowHelpTopic(form, 2);
}

struct PressRow {
  forms::Control& (*Of)(Form1&);
  std::int16_t Topic;  // opened with the Shift key alone, instead of the command; 0 for none
  Handler Command;     // null where a press does no more than that
};

// clang-format off
constexpr std::array<PressRow, 25> Presses{{
    // control                     topic command
    {The<&Form1::TMHelp>,          2,    Plain<TMHelp_MouseUp>},
    {The<&Form1::Cvalid>,          7,    Plain<Cvalid_MouseUp>},
    {The<&Form1::RefMap>,          8,    Plain<RefMap_MouseUp>},
    {The<&Form1::AddTer>,          9,    AddTer_MouseUp},
    {The<&Form1::DelControl>,      9,    Plain<DelControl_MouseUp>},
    {The<&Form1::ClearLink>,       10,   Plain<ClearLink_MouseUp>},
    {The<&Form1::MakeNeibor>,      10,   Plain<MakeNeibor_MouseUp>},
    {The<&Form1::AddCont>,         11,   Plain<AddCont_MouseUp>},
    {The<&Form1::SetCont>,         11,   Plain<SetCont_MouseUp>},
    {The<&Form1::Symb>,            12,   nullptr},
    {The<&Form1::SwapTer>,         13,   Plain<SwapTer_MouseUp>},
    {The<&Form1::Frame3D1>,        14,   nullptr},
    {The<&Form1::RGBFrame>,        14,   nullptr},
    {Element<&Form1::PlColor, 0>,  14,   nullptr},
    {Element<&Form1::PlColor, 1>,  14,   nullptr},
    {Element<&Form1::PlColor, 2>,  14,   nullptr},
    {Element<&Form1::PlColor, 3>,  14,   nullptr},
    {Element<&Form1::PlColor, 4>,  14,   nullptr},
    {The<&Form1::LoadMap>,         15,   Plain<LoadMap_MouseUp>},
    {The<&Form1::LoadMpa>,         15,   Plain<LoadMpa_MouseUp>},
    {The<&Form1::SaveCFG>,         15,   Plain<SaveCFG_MouseUp>},
    {The<&Form1::DelAll>,          15,   Plain<DelAll_MouseUp>},
    {The<&Form1::Text1>,           15,   nullptr},
    {The<&Form1::Armypc>,          16,   nullptr},
    {The<&Form1::DBPush1>,         0,    Plain<DBPush1_MouseUp>},
}};
// clang-format on

}  // namespace

void JoinPresses(Form1& form) {
  for (const PressRow& row : Presses) {
    row.Of(form).MouseUp = [&form, &row](const forms::MouseEvent& event) {
      if (row.Topic != 0 && event.Shift == forms::ShiftKey) {
        ShowHelpTopic(form, row.Topic);
      } else if (row.Command != nullptr) {
        row.Command(form, event);
      }
    };
  }
}

}  // namespace terramark
