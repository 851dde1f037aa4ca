#include "canvas/colourpanel.h"

#include <algorithm>

#include "shell/colours.h"
#include "shell/colourtarget.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

namespace {

/// A component from a file that is out of range sets its bar to the nearer end.
void LoadBars(Form1& form, const Components& rgb) {
  form.SliderLock = Form1::LockOn;
  form.ColBar.ForEach([&](forms::VScrollBar& bar) {
    bar.Value = std::clamp<int>(rgb.at(static_cast<std::size_t>(bar.Index())), bar.Min, bar.Max);
  });
  form.SliderLock = Form1::LockOff;
}

Components BarValues(Form1& form) {
  Components rgb{};
  form.ColBar.ForEach([&](const forms::VScrollBar& bar) {
    rgb.at(static_cast<std::size_t>(bar.Index())) = static_cast<std::int16_t>(bar.Value);
  });
  return rgb;
}

void ColourPlayer(Form1& form, std::int16_t row, const Components& rgb) {
  form.PlayerRGB[static_cast<std::size_t>(row)] = rgb;
  form.PlColor(row).BackColor = form.SliderColour;
}

void ColourRegion(Form1& form, std::int16_t region, const Components& rgb) {
  forms::Label* marker = RegionMarker(form, region);
  if (marker == nullptr || region != form.CurRegion) return;
  form.RegionRGB(region) = rgb;
  SetOwnColour(*marker, form.SliderColour, TagForm::WithoutBlank);
  form.PlColor(RegionButton).BackColor = form.SliderColour;
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    if (form.AreaRegion(i) != region) continue;
    CopyRegionColour(form.ArmyAt(i), *marker);
    // Inside the loop over the Areas on purpose: for a Region without Areas the name keeps its
    // colour.
    form.EditText.ForeColor = form.SliderColour;
  }
}

}  // namespace

void PlColor_Click(Form1& form, const forms::PlainEvent& event) {
  if (event.Index != RegionButton) {
    LoadBars(form, form.PlayerRGB[static_cast<std::size_t>(event.Index)]);
    SetColourTarget(form, {ColourTarget::Kind::Player, event.Index});
    return;
  }
  if (RegionMarker(form, form.CurRegion) == nullptr) return;
  LoadBars(form, form.RegionRGB(form.CurRegion));
  SetColourTarget(form, {ColourTarget::Kind::Region, form.CurRegion});
}

void ColBar_Change(Form1& form) {
  if (form.SliderLock == Form1::LockOn) return;
  const Components rgb = BarValues(form);
  form.SliderColour = ColourOf(rgb);
  const ColourTarget target = TargetOf(form);
  switch (target.Of) {
    case ColourTarget::Kind::None:
      break;
    case ColourTarget::Kind::Player:
      ColourPlayer(form, target.Number, rgb);
      break;
    case ColourTarget::Kind::Region:
      ColourRegion(form, target.Number, rgb);
      break;
  }
}

}  // namespace terramark
