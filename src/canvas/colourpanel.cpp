#include "canvas/colourpanel.h"

#include <algorithm>

#include "shell/colourtarget.h"
#include "shell/markers.h"

namespace terramark {

namespace {

/// A component that a file brought from outside the range stands at the nearer end of its bar.
void LoadBars(Form1& form, const Components& rgb) {
  form.SliderLock = Form1::LockOn;
  for (std::int16_t i = 0; i < 3; ++i) {
    forms::VScrollBar& bar = form.ColBar(i);
    bar.Value = std::clamp<int>(rgb[static_cast<std::size_t>(i)], bar.Min, bar.Max);
  }
  form.SliderLock = Form1::LockOff;
}

Components BarValues(Form1& form) {
  const auto value = [&](std::int16_t i) {
    return static_cast<std::int16_t>(form.ColBar(i).Value);
  };
  return {value(0), value(1), value(2)};
}

void ColourRegion(Form1& form, std::int16_t region, const Components& rgb) {
  forms::Label* marker = RegionMarker(form, region);
  if (marker == nullptr || region != form.CurRegion) return;
  form.RegionRGB(region) = rgb;
  marker->ForeColor = form.SliderColour;
  marker->Tag = PlainNumber(static_cast<std::int32_t>(form.SliderColour));
  form.PlColor(RegionButton).BackColor = form.SliderColour;
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    if (form.AreaRegion(i) != region) continue;
    form.ArmyAt(i).ForeColor = TagColour(*marker);
    form.ArmyAt(i).Tag = marker->Tag;
    form.EditText.ForeColor = form.SliderColour;
  }
}

}  // namespace

void PlColor_Click(Form1& form, const forms::PlainEvent& event) {
  const std::int16_t index = event.Index;
  const bool region = index == RegionButton;
  if (region && RegionMarker(form, form.CurRegion) == nullptr) return;
  LoadBars(form, region ? form.RegionRGB(form.CurRegion)
                        : form.PlayerRGB[static_cast<std::size_t>(index)]);
  form.RGBFrame.Enabled = true;
  form.RGBFrame.Tag = region ? RegionTarget + PlainNumber(form.CurRegion) : PlainNumber(index);
}

void ColBar_Change(Form1& form) {
  if (form.SliderLock == Form1::LockOn) return;
  const Components rgb = BarValues(form);
  form.SliderColour = ColourOf(rgb);
  const std::string& target = form.RGBFrame.Tag;
  if (target.empty() || target == NoColourTarget) return;
  if (target[0] == RegionTarget) {
    ColourRegion(form, WholeNumber(ReadNumber(target.substr(1))).value_or(0), rgb);
    return;
  }
  const std::int16_t row = WholeNumber(ReadNumber(target)).value_or(0);
  form.PlayerRGB[static_cast<std::size_t>(row)] = rgb;
  form.PlColor(row).BackColor = form.SliderColour;
}

}  // namespace terramark
