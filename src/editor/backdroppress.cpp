#include "editor/backdroppress.h"

#include "canvas/refreshmap.h"
#include "commands/addmarkers.h"
#include "selection/selection.h"
#include "shell/backdrop.h"
#include "shell/form1.h"

namespace terramark {

void Picture1_MouseUp(Form1& form, const forms::MouseEvent& event) {
  if (event.Shift == forms::CtrlKey) {
    forms::MouseEvent above = event;
    above.Y -= form.ArmyAt(0).Height;
    AddTer_MouseUp(form, above);
  } else if (event.Shift == 0) {
    const ShowResult shown = RefreshMap(form);
    ClearSelection(form);
    if (!shown) ShowPictureFault(form, form.PictureFile, shown.error());
  }
}

}  // namespace terramark
