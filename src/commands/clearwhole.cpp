#include "commands/clearwhole.h"

#include "shell/backdrop.h"
#include "shell/clearmap.h"
#include "shell/form1.h"
#include "shell/questions.h"

namespace terramark {

void DelAll_MouseUp(Form1& form) {
  if (!Confirm(form, "Clear whole map?")) return;
  ClearMap(form);
  ShowNewPicture(form, "");
}

}  // namespace terramark
