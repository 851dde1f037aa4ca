#include "editor/presses.h"

#include "canvas/loadlayout.h"
#include "canvas/loadpicture.h"
#include "canvas/refreshmap.h"
#include "canvas/savelayout.h"
#include "commands/aboutform.h"
#include "commands/addmarkers.h"
#include "commands/clearlinks.h"
#include "commands/clearwhole.h"
#include "commands/cvalid.h"
#include "commands/deletemarkers.h"
#include "commands/setneighbours.h"
#include "commands/setregion.h"
#include "commands/swapareas.h"
#include "forms/broken.h"
#include "shell/bars.h"
#include "shell/controltable.h"
#include "shell/form1.h"

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
  ShowHelpTopic(form, form.TMHelp.HelpTopic);
}

/// Exit and the colours act on their clicks instead.
struct CommandRow {
  Finder<Form1, forms::CommandButton> Of;
  Handler Command;
};

// clang-format off
constexpr CommandRow Commands[] = {
    {The<&Form1::AddCont>,     Plain<AddCont_MouseUp>},
    {The<&Form1::AddTer>,      AddTer_MouseUp},
    {The<&Form1::ClearLink>,   Plain<ClearLink_MouseUp>},
    {The<&Form1::Cvalid>,      Plain<Cvalid_MouseUp>},
    {The<&Form1::DBPush1>,     Plain<DBPush1_MouseUp>},
    {The<&Form1::DelAll>,      Plain<DelAll_MouseUp>},
    {The<&Form1::DelControl>,  Plain<DelControl_MouseUp>},
    {The<&Form1::LoadMap>,     Plain<LoadMap_MouseUp>},
    {The<&Form1::LoadMpa>,     Plain<LoadMpa_MouseUp>},
    {The<&Form1::MakeNeibor>,  Plain<MakeNeibor_MouseUp>},
    {The<&Form1::RefMap>,      Plain<RefMap_MouseUp>},
    {The<&Form1::SaveCFG>,     Plain<SaveCFG_MouseUp>},
    {The<&Form1::SetCont>,     Plain<SetCont_MouseUp>},
    {The<&Form1::SwapTer>,     Plain<SwapTer_MouseUp>},
    {The<&Form1::TMHelp>,      Plain<TMHelp_MouseUp>},
};
// clang-format on

void Nothing(Form1&, const forms::MouseEvent&) {
}

void Join(Form1& form, forms::Control& control, Handler command) {
  control.MouseUp = [&form, &control, command](const forms::MouseEvent& event) {
    if (control.HelpTopic != 0 && forms::AsksForHelp(event.Shift)) {
      ShowHelpTopic(form, control.HelpTopic);
    } else {
      command(form, event);
    }
  };
}

}  // namespace

void JoinPresses(Form1& form) {
  for (forms::Control* control : form.Controls()) {
    if (control->HelpTopic != 0) Join(form, *control, Nothing);
  }
  for (const CommandRow& row : Commands) {
    forms::CommandButton& button = row.Of(form);
    if (button.Owner() != &form) forms::Broken(button.Name() + " is not in the control table");
    Join(form, button, row.Command);
  }
}

}  // namespace terramark
