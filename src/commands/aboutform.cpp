#include "commands/aboutform.h"

#include "shell/colours.h"
#include "shell/controltable.h"
#include "shell/form1.h"
#include "shell/icon.h"

namespace terramark {

namespace {

constexpr char AboutSentence[] =
    "Terramark 1 by the Terramark developers, see Help: good maps win games";

/// In tab order; places and sizes in twips.
// clang-format off
constexpr ControlRow<AboutForm> AboutControls[] = {
    // control                   caption topic inside  left  top   width  height, tooltip, accessible name
    {ControlOf<&AboutForm::AboutOk>,   "OK", 0, Itself, 4530,  615,  510,  375},
    {ControlOf<&AboutForm::Picture1>,  "",   0, Itself, 4530,   45,  510,  480, "", "The icon of Terramark"},
    {ControlOf<&AboutForm::AboutText>, "",   0, Itself,    0,   30, 4440, 1050, "", "About Terramark"},
    {ControlOf<&AboutForm::Label1>,    "",   0, Itself,   30, 1110, 5025,  315, "", "A coloured bar"},
};
// clang-format on

}  // namespace

AboutForm::AboutForm(forms::Desktop& host) : Form(host, "AboutForm") {
  Caption = "About Terramark";
  BackColor = ClrGrey;
  Move(2790, 2925);
  Width = 5055;
  Height = 1455;
  BuildControls<AboutForm>(*this, AboutControls);
  Picture1.BackColor = ClrGrey;
  Picture1.Picture = ProgramIcon();
  AboutText.MultiLine = true;
  AboutText.BackColor = 0x00FFFF00;
  AboutText.Text = AboutSentence;
  Label1.BackColor = 0x000000FF;
  Label1.ForeColor = ClrWhite;
  Label1.Alignment = forms::Alignment::Centred;
  AboutOk.Click = [this](const forms::PlainEvent&) { AboutOk_Click(*this); };
}

void DBPush1_MouseUp(Form1& form) {
  AboutForm about(form.Host);
  form.Host.ShowModal(about);
}

void AboutOk_Click(AboutForm& about) {
  about.Unload();
}

}  // namespace terramark
