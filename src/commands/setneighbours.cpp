#include "commands/setneighbours.h"

#include <string>
#include <vector>

#include "commands/markedareas.h"
#include "document/links.h"
#include "document/numbers.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

namespace {

/// Gives Area i an entry for the current Area, behind those it has.
void LinkBack(Form1& form, std::int16_t i) {
  std::string& links = form.AreaLinks(i);
  const std::int16_t count = LinkCount(links);
  if (count == 0) {
    links = "01" + TwoDigit(form.CurArea);
  } else if (IsNeighbour(form, i, form.CurArea) == 0) {
    links.replace(0, 2, TwoDigit(static_cast<std::int16_t>(count + 1)));
    links += TwoDigit(form.CurArea);
  }
}

}  // namespace

void MakeNeibor_MouseUp(Form1& form) {
  if (form.MarkCount < 2) return;
  const std::vector<std::int16_t> marked = GreyAreas(form);
  const bool currentGone = form.CurArea != 0 && AreaMarker(form, form.CurArea) == nullptr;
  if (marked.empty() || currentGone) {
    ShowMessage(form, "mark the neighbours first", ClrRed);
    return;
  }
  std::string pairs;
  for (const std::int16_t i : marked) {
    LinkBack(form, i);
    pairs += TwoDigit(i);
  }
  const auto count = static_cast<std::int16_t>(marked.size());
  form.AreaLinks(form.CurArea) = TwoDigit(count) + pairs;
  ShowMessage(form,
              NumberText(count) + " neighbours set for Area" + NumberText(form.CurArea) + " = <" +
                  NumberList(marked) + ">",
              ClrGreen);
}

}  // namespace terramark
