#include "commands/setneighbours.h"

#include <vector>

#include "commands/markedareas.h"
#include "document/links.h"
#include "document/numbers.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

void MakeNeibor_MouseUp(Form1& form) {
  if (form.MarkCount < 2) return;
  const std::vector<std::int16_t> marked = CollectMarkedAreas(form);
  const bool currentGone = form.CurArea != 0 && AreaMarker(form, form.CurArea) == nullptr;
  if (marked.empty() || currentGone) {
    ShowMessage(form, "mark the neighbours first", ClrRed);
    return;
  }
  for (const std::int16_t i : marked) {
    form.AreaLinks(i) = WithEntry(form.AreaLinks(i), form.CurArea);
  }
  form.AreaLinks(form.CurArea) = MakeLinks(marked);
  const auto count = static_cast<std::int16_t>(marked.size());
  ShowMessage(form,
              NumberText(count) + " neighbours set for Area" + NumberText(form.CurArea) + " = <" +
                  NumberList(marked) + ">",
              ClrGreen);
}

}  // namespace terramark
