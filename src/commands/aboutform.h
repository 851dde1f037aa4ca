// The about box.
#pragma once

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/picturebox.h"

namespace terramark {

struct Form1;

struct AboutForm : forms::Form {
  explicit AboutForm(forms::Desktop& host);

  forms::CommandButton AboutOk{"AboutOk"};  // "OK"
  forms::PictureBox Picture1{"Picture1"};   // the program's icon
  forms::TextBox AboutText{"AboutText"};    // what the program is called and who made it
  forms::Label Label1{"Label1"};            // a bare coloured bar
};

/// Shows the about box until it is closed. This is the one command button without a help topic: a
/// press with the Shift key opens the box too.
void DBPush1_MouseUp(Form1& form);

void AboutOk_Click(AboutForm& about);

}  // namespace terramark
