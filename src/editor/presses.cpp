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
#include "forms/fatalerror.h"
#include "shell/bars.h"
#include "shell/controltable.h"
#include "shell/form1.h"

namespace terramark {

namespace {

using Handler = void (*)(Form1&, const forms::MouseEvent&);

/// Adapts a command that does not use the event.
template <void (*Command)(Form1&)>
void IgnoreEvent(Form1& form, const forms::MouseEvent&) {
  Command(form);
}

/// This button opens help without the Shift key.
void TMHelp_MouseUp(Form1& form) {
  ShowHelpTopic(form, form.TMHelp.HelpTopic);
}

/// Exit and the colours have handlers for Click instead.
struct CommandRow {
  Finder<Form1, forms::CommandButton> Locate;
  Handler Command;
};

// clang-format off
constexpr CommandRow Commands[] = {
    {ControlOf<&Form1::AddCont>,    IgnoreEvent<AddCont_MouseUp>},
    {ControlOf<&Form1::AddTer>,     AddTer_MouseUp},
    {ControlOf<&Form1::ClearLink>,  IgnoreEvent<ClearLink_MouseUp>},
    {ControlOf<&Form1::Cvalid>,     IgnoreEvent<Cvalid_MouseUp>},
    {ControlOf<&Form1::DBPush1>,    IgnoreEvent<DBPush1_MouseUp>},
    {ControlOf<&Form1::DelAll>,     IgnoreEvent<DelAll_MouseUp>},
    {ControlOf<&Form1::DelControl>, IgnoreEvent<DelControl_MouseUp>},
    {ControlOf<&Form1::LoadMap>,    IgnoreEvent<LoadMap_MouseUp>},
    {ControlOf<&Form1::LoadMpa>,    IgnoreEvent<LoadMpa_MouseUp>},
    {ControlOf<&Form1::MakeNeibor>, IgnoreEvent<MakeNeibor_MouseUp>},
    {ControlOf<&Form1::RefMap>,     IgnoreEvent<RefMap_MouseUp>},
    {ControlOf<&Form1::SaveCFG>,    IgnoreEvent<SaveCFG_MouseUp>},
    {ControlOf<&Form1::SetCont>,    IgnoreEvent<SetCont_MouseUp>},
    {ControlOf<&Form1::SwapTer>,    IgnoreEvent<SwapTer_MouseUp>},
    {ControlOf<&Form1::TMHelp>,     IgnoreEvent<TMHelp_MouseUp>},
};
// clang-format on

void NoCommand(Form1&, const forms::MouseEvent&) {
}

void Connect(Form1& form, forms::Control& control, Handler command) {
  control.MouseUp = [&form, &control, command](const forms::MouseEvent& event) {
    if (control.HelpTopic != 0 && forms::AsksForHelp(event.Shift)) {
      ShowHelpTopic(form, control.HelpTopic);
    } else {
      command(form, event);
    }
  };
}

}  // namespace

void ConnectPresses(Form1& form) {
  for (forms::Control* control : form.Controls()) {
    if (control->HelpTopic != 0) Connect(form, *control, NoCommand);
  }
  for (const CommandRow& row : Commands) {
    forms::CommandButton& button = row.Locate(form);
    if (button.ParentForm() != &form)
      forms::FatalError(button.Name() + " is not in the control table");
    Connect(form, button, row.Command);
  }
}

}  // namespace terramark
