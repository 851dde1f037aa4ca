#include "canvas/showlayout.h"

#include "shell/colours.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

namespace {

void MakeMarkers(Form1& form) {
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) form.ArmyAt.Load(i);
  for (std::int16_t r = 1; r <= form.RegionCount; ++r) form.Continent.Load(r);
  for (std::int16_t i = 0; i <= form.AreaCount; ++i) {
    forms::Label& marker = form.ArmyAt(i);
    marker.BorderStyle = forms::Border::FixedSingle;
    marker.Width = AreaMarkerWidth;
    marker.Height = AreaMarkerHeight;
  }
}

/// The ratio of the pixels of the screen where the layout was saved to those of this one.
struct TwipRatio {
  float X;
  float Y;
};

void Place(forms::Label& marker, const MarkerRecord& laid, TwipRatio scale) {
  if (laid.Place) marker.Move(scale.X * laid.Place->Left, scale.Y * laid.Place->Top);
}

}  // namespace

void ShowHead(Form1& form, const MapLayout& layout) {
  static_cast<Tables&>(form) = layout;
  form.Text1.Text = layout.Header;
  MakeMarkers(form);
}

void PlaceMarkers(Form1& form, const MapLayout& layout) {
  static_cast<Tables&>(form) = layout;
  const TwipRatio scale{layout.TwipsX / form.Host.TwipsPerPixelX(),
                        layout.TwipsY / form.Host.TwipsPerPixelY()};
  for (std::int16_t r = 0; r <= layout.RegionCount; ++r) {
    const MarkerRecord& laid = layout.RegionMarkers(r);
    forms::Label& marker = form.Continent(r);
    if (laid.RGB) {
      marker.Caption = layout.RegionName(r);
      PaintMarker(marker, ColourOf(*laid.RGB));
    }
    Place(marker, laid, scale);
  }
  for (std::int16_t i = 0; i <= layout.AreaCount; ++i) {
    const MarkerRecord& laid = layout.AreaMarkers(i);
    forms::Label& marker = form.ArmyAt(i);
    if (laid.RGB) {
      PaintMarker(marker, ColourOf(*laid.RGB));
      SetCorner(form, i, layout.AreaCorner(i));
    }
    Place(marker, laid, scale);
  }
}

ShowResult ShowMap(Form1& form) {
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    form.ArmyAt(i).Visible = false;
    form.ArmyAt(i).ZOrder(forms::StackEnd::Back);
  }
  ShowResult shown = ShowNewPicture(form, form.PictureFile);
  if (!shown) return shown;
  form.Picture1.ZOrder(forms::StackEnd::Front);
  for (std::int16_t r = 1; r <= form.RegionCount; ++r) form.Continent(r).Visible = true;
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    form.ArmyAt(i).Visible = true;
    form.ArmyAt(i).ZOrder(forms::StackEnd::Front);
  }
  return shown;
}

}  // namespace terramark
