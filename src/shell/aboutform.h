// The about box.
#pragma once

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/picturebox.h"

namespace terramark {

struct Form1;

struct AboutForm : forms::Form {
  explicit AboutForm(forms::Desktop& host);

  forms::CommandButton AboutOk;
  forms::PictureBox Picture1;
  forms::TextBox AboutText;
  forms::Label Label1;
};

/// Shows the about box until it is closed. The one command button without help: a press with the
/// Shift key opens the box too.
void DBPush1_MouseUp(Form1& form);

void AboutOk_Click(AboutForm& about);

}  // namespace terramark
