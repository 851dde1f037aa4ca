#include "layoutfile/readmapfile.h"

#include <cmath>
#include <string>

#include "document/cardsymbol.h"
#include "document/corner.h"
#include "shell/backdrop.h"
#include "shell/bars.h"
#include "shell/colours.h"
#include "shell/filenames.h"
#include "shell/form1.h"
#include "shell/markers.h"

namespace terramark {

namespace {

constexpr char BoxTitle[] = "TMRK 1.1";
constexpr int ExitFailed = 1;

// Pixels; the same for every Area marker, the template included.
constexpr float MarkerWidth = 32;
constexpr float MarkerHeight = 16;

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
    marker.Width = MarkerWidth;
    marker.Height = MarkerHeight;
  }
}

bool ReadHead(Form1& form, FieldReader& file) {
  std::string_view header;
  std::string_view timeStamp;
  if (!file.Line(header)) return false;
  form.Text1.Text = std::string(header);
  std::int16_t regions = 0;
  std::int16_t areas = 0;
  if (!file.Line(timeStamp) || !file.Fields(regions, areas)) return false;
  if (!IsTableNumber(regions) || !IsTableNumber(areas)) return false;
  form.RegionCount = regions;
  form.AreaCount = areas;
  MakeMarkers(form);
  std::string_view picture;
  if (!file.Fields(picture)) return false;
  form.PictureFile = picture;
  return true;
}

bool ReadPlayerColours(Form1& form, FieldReader& file) {
  for (Components& rgb : form.PlayerRGB) {
    if (!file.Fields(rgb)) return false;
  }
  for (std::int16_t i = 0; i < 4; ++i) {
    form.PlColor(i).BackColor = ColourOf(form.PlayerRGB[static_cast<std::size_t>(i)]);
  }
  return true;
}

std::string SymbolCode(std::string_view letter, std::string_view name) {
  const CardSymbol* symbol = letter.size() == 1 ? SymbolOfLetter(letter[0]) : nullptr;
  return symbol != nullptr ? std::string(1, symbol->Code) : std::string(name.substr(0, 1));
}

bool ReadArea(Form1& form, FieldReader& file, std::int16_t region) {
  std::int16_t a = 0;
  std::int16_t corner = 0;
  std::string_view letter;
  std::string_view name;
  std::string_view links;
  if (!file.Fields(a, letter, name, links, corner)) return false;
  forms::Label* marker = form.ArmyAt.Find(a);
  if (marker == nullptr) return false;
  form.AreaName(a) = name;
  form.AreaLinks(a) = links;
  form.AreaCorner(a) = corner;
  form.AreaSymbol(a) = SymbolCode(letter, name);
  PaintMarker(*marker, form.Continent(region).ForeColor);
  marker->Caption = MarkerCaption(a, corner);
  form.AreaRegion(a) = region;
  return true;
}

bool ReadRegionGroup(Form1& form, FieldReader& file) {
  std::int16_t r = 0;
  std::int16_t members = 0;
  Components rgb{};
  std::string_view name;
  std::int16_t armies = 0;
  if (!file.Fields(r, members, rgb, name, armies)) return false;
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

/// A line of a section that is computed afresh at each save.
bool PassPair(FieldReader& file, std::int16_t& number) {
  std::string_view text;
  return file.Fields(number, text) && IsTableNumber(number);
}

bool PassPairs(FieldReader& file, std::int16_t count) {
  std::int16_t number = 0;
  for (std::int16_t k = 0; k < count; ++k) {
    if (!PassPair(file, number)) return false;
  }
  return true;
}

bool PassBridges(FieldReader& file) {
  for (int k = 0; k < MostBridgeLines; ++k) {
    std::int16_t number = 0;
    if (!PassPair(file, number)) return false;
    if (number == 0) break;
  }
  return true;
}

bool PassComputedSections(Form1& form, FieldReader& file) {
  std::string_view head;
  return file.Line(head) && PassBridges(file) &&                // bridges
         file.Line(head) && PassPairs(file, form.AreaCount) &&  // blitz
         file.Line(head) && PassPairs(file, form.RegionCount);  // breaks
}

/// From pixels of the saving screen to pixels of this one.
struct PositionScale {
  float X;
  float Y;
};

bool ReadPosition(forms::ControlArray<forms::Label>& markers, FieldReader& file,
                  PositionScale scale) {
  std::int16_t k = 0;
  float x = 0;
  float y = 0;
  if (!file.Fields(k, x, y)) return false;
  forms::Label* marker = markers.Find(k);
  if (marker == nullptr) return false;
  marker->Left = scale.X * x;
  marker->Top = scale.Y * y;
  return std::isfinite(marker->Left) && std::isfinite(marker->Top);
}

bool ReadPositions(Form1& form, FieldReader& file) {
  std::string_view head;
  std::int16_t twipsX = 0;
  std::int16_t twipsY = 0;
  if (!file.Line(head) || !file.Fields(twipsX, twipsY)) return false;
  const PositionScale scale{static_cast<float>(twipsX) / form.Host.TwipsPerPixelX(),
                            static_cast<float>(twipsY) / form.Host.TwipsPerPixelY()};
  for (std::int16_t k = 0; k <= form.AreaCount; ++k) {
    if (!ReadPosition(form.ArmyAt, file, scale)) return false;
  }
  if (!file.Line(head)) return false;
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
  if (!ShowPicture(form, form.PictureFile)) return false;
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
