#include "layoutfile/readmapfile.h"

#include <cmath>
#include <optional>
#include <string>

#include "document/cardsymbol.h"
#include "shell/backdrop.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/colourtarget.h"
#include "shell/filenames.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

namespace {

constexpr char BoxTitle[] = "TMRK 1.1";
constexpr int ExitFailed = 1;

/// Pairs that are looked through for the end of the bridge lines.
constexpr int MostBridgeLines = 99;

bool IsTableNumber(std::int16_t number) {
  return number >= 0 && number <= LastNumber;
}

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

bool ReadHead(Form1& form, FieldReader& file) {
  const auto header = file.Line();
  if (!header) return false;
  form.Text1.Text = std::string(*header);
  const auto timeStamp = file.Line();
  const auto counts = file.Fields<std::int16_t, std::int16_t>();
  if (!timeStamp || !counts) return false;
  const auto [regions, areas] = *counts;
  if (!IsTableNumber(regions) || !IsTableNumber(areas)) return false;
  form.RegionCount = regions;
  form.AreaCount = areas;
  MakeMarkers(form);
  const auto picture = file.Field<std::string_view>();
  if (!picture) return false;
  form.PictureFile = *picture;
  return true;
}

bool ReadPlayerColours(Form1& form, FieldReader& file) {
  for (Components& rgb : form.PlayerRGB) {
    const auto read = file.Field<Components>();
    if (!read) return false;
    rgb = *read;
  }
  ShowPlayerColours(form);
  return true;
}

std::string SymbolCode(std::string_view letter, std::string_view name) {
  const CardSymbol* symbol = letter.size() == 1 ? SymbolOfLetter(letter[0]) : nullptr;
  return symbol != nullptr ? std::string(1, symbol->Code) : std::string(name.substr(0, 1));
}

bool ReadArea(Form1& form, FieldReader& file, std::int16_t region) {
  using Text = std::string_view;
  const auto line = file.Fields<std::int16_t, Text, Text, Text, std::int16_t>();
  if (!line) return false;
  const auto [a, letter, name, links, corner] = *line;
  forms::Label* marker = form.ArmyAt.Find(a);
  if (marker == nullptr) return false;
  form.AreaName(a) = name;
  form.AreaLinks(a) = links;
  form.AreaSymbol(a) = SymbolCode(letter, name);
  PaintMarker(*marker, form.Continent(region).ForeColor);
  SetCorner(form, a, corner);
  form.AreaRegion(a) = region;
  return true;
}

bool ReadRegionGroup(Form1& form, FieldReader& file) {
  const auto line =
      file.Fields<std::int16_t, std::int16_t, Components, std::string_view, std::int16_t>();
  if (!line) return false;
  const auto [r, members, rgb, name, armies] = *line;
  forms::Label* marker = form.Continent.Find(r);
  if (marker == nullptr) return false;
  form.RegionName(r) = name;
  form.RegionArmies(r) = armies;
  marker->Caption = std::string(name);
  PaintMarker(*marker, ColourOf(rgb));
  form.RegionRGB(r) = rgb;
  for (std::int16_t k = 0; k < members; ++k) {
    if (!ReadArea(form, file, r)) return false;
  }
  return true;
}

bool ReadRegionGroups(Form1& form, FieldReader& file) {
  for (std::int16_t k = 0; k < form.RegionCount; ++k) {
    if (!ReadRegionGroup(form, file)) return false;
  }
  return true;
}

/// The number of a line of a section that is computed afresh at each save.
std::optional<std::int16_t> PassPair(FieldReader& file) {
  const auto pair = file.Fields<std::int16_t, std::string_view>();
  if (!pair || !IsTableNumber(std::get<0>(*pair))) return std::nullopt;
  return std::get<0>(*pair);
}

bool PassPairs(FieldReader& file, std::int16_t count) {
  for (std::int16_t k = 0; k < count; ++k) {
    if (!PassPair(file)) return false;
  }
  return true;
}

bool PassBridges(FieldReader& file) {
  for (int k = 0; k < MostBridgeLines; ++k) {
    const auto number = PassPair(file);
    if (!number) return false;
    if (*number == 0) break;
  }
  return true;
}

bool PassComputedSections(Form1& form, FieldReader& file) {
  return file.Line() && PassBridges(file) &&                // bridges
         file.Line() && PassPairs(file, form.AreaCount) &&  // blitz
         file.Line() && PassPairs(file, form.RegionCount);  // breaks
}

/// From pixels of the saving screen to pixels of this one.
struct PositionScale {
  float X;
  float Y;
};

bool ReadPosition(forms::ControlArray<forms::Label>& markers, FieldReader& file,
                  PositionScale scale) {
  const auto line = file.Fields<std::int16_t, float, float>();
  if (!line) return false;
  const auto [k, x, y] = *line;
  forms::Label* marker = markers.Find(k);
  if (marker == nullptr) return false;
  marker->Left = scale.X * x;
  marker->Top = scale.Y * y;
  return std::isfinite(marker->Left) && std::isfinite(marker->Top);
}

bool ReadPositions(Form1& form, FieldReader& file) {
  if (!file.Line()) return false;
  const auto twips = file.Fields<std::int16_t, std::int16_t>();
  if (!twips) return false;
  const auto [twipsX, twipsY] = *twips;
  const PositionScale scale{static_cast<float>(twipsX) / form.Host.TwipsPerPixelX(),
                            static_cast<float>(twipsY) / form.Host.TwipsPerPixelY()};
  for (std::int16_t k = 0; k <= form.AreaCount; ++k) {
    if (!ReadPosition(form.ArmyAt, file, scale)) return false;
  }
  if (!file.Line()) return false;
  for (std::int16_t k = 0; k < form.RegionCount; ++k) {
    if (!ReadPosition(form.Continent, file, scale)) return false;
  }
  return true;
}

/// Shows the picture and, over it, the Region markers and then the Area markers in rising order.
bool ShowMap(Form1& form) {
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    form.ArmyAt(i).Visible = false;
    form.ArmyAt(i).ZOrder(forms::StackEnd::Back);
  }
  if (!ShowNewPicture(form, form.PictureFile).empty()) return false;
  form.Picture1.ZOrder(forms::StackEnd::Front);
  for (std::int16_t r = 1; r <= form.RegionCount; ++r) form.Continent(r).Visible = true;
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    form.ArmyAt(i).Visible = true;
    form.ArmyAt(i).ZOrder(forms::StackEnd::Front);
  }
  return true;
}

/// False when the file fails; a picture that is not there is no failure of the file.
bool ReadSections(Form1& form, FieldReader& file) {
  if (!ReadHead(form, file)) return false;
  if (FileExists(form, form.PictureFile) == 0) {
    form.Host.MsgBox("MAP File " + form.PictureFile + " not found", forms::Buttons::Ok, BoxTitle);
    return true;
  }
  form.LoadMap.Caption = form.PictureFile;
  if (!ReadPlayerColours(form, file) || !ReadRegionGroups(form, file) ||
      !PassComputedSections(form, file) || !ReadPositions(form, file) || !ShowMap(form)) {
    return false;
  }
  UpdateCounts(form);
  return true;
}

}  // namespace

void ReadMapFile(Form1& form, FieldReader& file) {
  if (ReadSections(form, file)) return;
  form.Host.MsgBox("Error reading Map Layout File " + form.LayoutFile, forms::Buttons::Ok,
                   BoxTitle);
  form.Host.End(ExitFailed);
}

}  // namespace terramark
