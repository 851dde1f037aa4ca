#include "shell/markers.h"

#include "document/corner.h"
#include "document/numbers.h"
#include "forms/geometry.h"
#include "shell/colours.h"
#include "shell/form1.h"

namespace terramark {

forms::Label* AreaMarker(Form1& form, std::int16_t area) {
  return area < 1 ? nullptr : form.ArmyAt.Find(area);
}

forms::Label* RegionMarker(Form1& form, std::int16_t region) {
  return region < 1 ? nullptr : form.Continent.Find(region);
}

forms::Control* MarkerAtCursor(Form1& form) {
  forms::Control* const marker = form.Picture1.CursorItem;
  return marker != nullptr && marker->IsVisible() ? marker : nullptr;
}

void ScrollMarkerIntoView(Form1& form, const forms::Control& marker) {
  if (marker.IsVisible()) form.Picture1.ScrollIntoView(DisplayBounds(marker));
}

MarkerState MarkerStateOf(const forms::Label& marker) {
  if (marker.BackColor == ClrBlack) return MarkerState::Plain;
  return marker.BackColor == ClrWhite ? MarkerState::Current : MarkerState::Marked;
}

void Show(forms::Label& marker, MarkerState look) {
  switch (look) {
    case MarkerState::Plain:
      marker.BackColor = ClrBlack;
      marker.ForeColor = OwnColour(marker);
      break;
    case MarkerState::Current:
      marker.BackColor = ClrWhite;
      marker.ForeColor = ClrBlack;
      break;
    case MarkerState::Marked:
      marker.BackColor = ClrGrey;
      marker.ForeColor = ClrWhite;
      break;
  }
}

forms::Color OwnColour(const forms::Label& marker) {
  return static_cast<forms::Color>(static_cast<std::int64_t>(ReadNumber(marker.Tag.Get())));
}

void SetOwnColour(forms::Label& marker, forms::Color colour, TagForm text) {
  const auto number = static_cast<std::int32_t>(colour);
  marker.ForeColor = colour;
  marker.Tag = text == TagForm::WithBlank ? NumberText(number) : PlainNumber(number);
}

void PaintMarker(forms::Label& marker, forms::Color colour, TagForm text) {
  SetOwnColour(marker, colour, text);
  marker.BackColor = ClrBlack;
}

void CopyRegionColour(forms::Label& area, const forms::Label& region) {
  area.ForeColor = OwnColour(region);
  area.Tag = region.Tag;
}

forms::Corner FillCorner(const Tables& tables, std::int16_t area) {
  const std::int16_t corner = tables.AreaCorner(area);
  return {.Right = AtRight(corner), .Bottom = AtBottom(corner)};
}

void SetCorner(Form1& form, std::int16_t area, std::int16_t corner) {
  form.AreaCorner(area) = corner;
  form.ArmyAt(area).AnchorCorner = FillCorner(form, area);
  form.ArmyAt(area).Caption = MarkerCaption(area, corner);
}

}  // namespace terramark
