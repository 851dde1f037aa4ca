#include "editor/hover.h"

#include <array>

#include "canvas/markermouse.h"
#include "shell/bars.h"
#include "shell/controltable.h"
#include "shell/form1.h"

namespace terramark {

namespace {

using Place = forms::Control& (*)(Form1&);

/// The help bar goes blank over these.
constexpr std::array<Place, 3> Blank{
    Itself<Form1>,
    The<&Form1::Message>,
    The<&Form1::Picture1>,
};

/// These describe themselves in their Tag; none has been given one, so that the bar goes blank.
// clang-format off
constexpr std::array<Place, 26> OwnTag{
    The<&Form1::AddCont>,        The<&Form1::AddTer>,         The<&Form1::ClearLink>,
    The<&Form1::Cvalid>,         The<&Form1::DBPush1>,        The<&Form1::DelAll>,
    The<&Form1::DelControl>,     The<&Form1::LoadMap>,        The<&Form1::LoadMpa>,
    The<&Form1::MakeNeibor>,     The<&Form1::TMHelp>,         The<&Form1::Quit>,
    The<&Form1::RefMap>,         The<&Form1::SaveCFG>,        The<&Form1::SetCont>,
    The<&Form1::SwapTer>,        Element<&Form1::PlColor, 0>, Element<&Form1::PlColor, 1>,
    Element<&Form1::PlColor, 2>, Element<&Form1::PlColor, 3>, Element<&Form1::PlColor, 4>,
    The<&Form1::Armypc>,         The<&Form1::EditText>,       The<&Form1::Symb>,
    The<&Form1::Text1>,          The<&Form1::Helpbar>,
};
// clang-format on

}  // namespace

void JoinHover(Form1& form) {
  for (const Place of : Blank) {
    of(form).MouseMove = [&form](const forms::MouseEvent&) { ShowHelpbar(form, ""); };
  }
  for (const Place of : OwnTag) {
    forms::Control& control = of(form);
    control.MouseMove = [&form, &control](const forms::MouseEvent&) {
      ShowHelpbar(form, control.Tag);
    };
  }
  form.ArmyAt(0).MouseMove = [&form](const auto& event) { ArmyAt_MouseMove(form, event); };
  form.Continent(0).MouseMove = [&form](const auto& event) { Continent_MouseMove(form, event); };
}

}  // namespace terramark
