#include "selection/selection.h"

#include "document/cardsymbol.h"
#include "document/links.h"
#include "document/numbers.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/colourtarget.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

namespace {

void Unmark(forms::Label& marker) {
  if (MarkerStateOf(marker) != MarkerState::Plain) Show(marker, MarkerState::Plain);
}

void FlipMark(Form1& form, forms::Label& marker) {
  if (MarkerStateOf(marker) != MarkerState::Plain) {
    Show(marker, MarkerState::Plain);
    --form.MarkCount;
  } else {
    Show(marker, MarkerState::Marked);
    ++form.MarkCount;
  }
  if (form.RGBFrame.Enabled) SetColourTarget(form, {});
}

void ShowName(Form1& form, const std::string& name, forms::Color colour) {
  form.EditText.Text = name;
  form.EditText.BackColor = ClrBlack;
  form.EditText.ForeColor = colour;
}

/// The armies as the box shows them: one digit below 10, otherwise the last two digits.
std::string ArmiesText(std::int16_t armies) {
  const std::string text = NumberText(armies);
  return text.substr(text.size() - (armies < 10 ? 1 : 2));
}

void MakeAreaCurrent(Form1& form, std::int16_t area, forms::Label& marker) {
  ClearSelection(form);
  Show(marker, MarkerState::Current);
  ++form.MarkCount;
  form.CurArea = area;
  // The keys on the map continue from the current item.
  form.Picture1.CursorItem = &marker;
  const CardSymbol* symbol = SymbolOfCode(form.AreaSymbol(area));
  ShowName(form, form.AreaName(area), OwnColour(form.Continent(0)));
  form.Symb.Text = CardSymbolLetter(form.AreaSymbol(area));
  form.Symb.Enabled = true;
  form.Armypc.Text = "";
  form.Armypc.Enabled = false;
  const std::int16_t region = form.AreaRegion(area);
  std::int16_t count = 0;
  HiliteAreaLinks(form, count);
  ShowMessage(form,
              "Area " + form.AreaName(area) + ", Region = " + form.RegionName(region) +
                  ", neighbours =" + NumberText(count) +
                  ", card symbol = " + (symbol != nullptr ? symbol->Word : ""),
              ClrGreen);
  form.EditText.SetFocus();
  form.EditText.SelectAll();
}

}  // namespace

void ClearSelection(Form1& form) {
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    Unmark(form.ArmyAt(i));
  }
  for (std::int16_t r = 1; r <= form.RegionCount; ++r) {
    Unmark(form.Continent(r));
  }
  // Before the boxes are emptied, so that their change events write nothing to the document.
  form.MarkCount = 0;
  form.CurArea = 0;
  form.CurRegion = 0;
  SetColourTarget(form, {});
  form.PlColor(RegionButton).Enabled = false;
  ShowMessage(form, "", ClrGreen);
  form.EditText.Text = "";
  form.Symb.Text = "";
  form.Armypc.Text = "";
}

void SelectArea(Form1& form, std::int16_t area, std::int16_t toggle) {
  forms::Label* marker = AreaMarker(form, area);
  if (marker == nullptr) return;
  if (toggle != 0) {
    FlipMark(form, *marker);
  } else {
    MakeAreaCurrent(form, area, *marker);
  }
}

void SelectRegion(Form1& form, std::int16_t region) {
  forms::Label* marker = RegionMarker(form, region);
  if (marker == nullptr) return;
  ClearSelection(form);
  Show(*marker, MarkerState::Current);
  form.CurRegion = region;
  ++form.MarkCount;
  form.Picture1.CursorItem = marker;
  ShowName(form, form.RegionName(region), OwnColour(*marker));
  form.Symb.Text = "";
  form.Symb.Enabled = false;
  form.Armypc.Enabled = true;
  form.Armypc.Text = ArmiesText(form.RegionArmies(region));
  std::int16_t count = 0;
  HiliteRegionAreas(form, count);
  ShowMessage(form,
              "Region " + form.RegionName(region) + ", Areas =" + NumberText(count) +
                  ", armies = " + form.Armypc.Text.Get(),
              ClrGreen);
  form.PlColor(RegionButton).Enabled = true;
  form.PlColor(RegionButton).BackColor = OwnColour(*marker);
}

void HiliteRegionAreas(Form1& form, std::int16_t& count) {
  if (form.CurRegion == 0) return;
  count = 0;
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    if (form.AreaRegion(i) != form.CurRegion) continue;
    Show(form.ArmyAt(i), MarkerState::Marked);
    ++count;
  }
}

void HiliteAreaLinks(Form1& form, std::int16_t& count) {
  if (form.CurArea == 0) return;
  for (std::int16_t a = 1; a <= form.AreaCount; ++a) {
    if (MarkerStateOf(form.ArmyAt(a)) != MarkerState::Current) continue;
    count = 0;
    for (const std::int16_t neighbour : Neighbours(form.AreaLinks(a))) {
      SelectArea(form, neighbour, 1);
      ++count;
    }
    return;
  }
}

}  // namespace terramark
