#include "layoutfile/layoutreader.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <tuple>
#include <utility>

#include "document/cardsymbol.h"
#include "document/numbers.h"
#include "layoutfile/headings.h"

namespace terramark {

namespace {

/// The end of the bridge lines is looked for within so many pairs.
constexpr int MaxBridgeLines = 99;

bool IsWithin(std::int16_t number, std::int16_t last) {
  return number >= 0 && number <= last;
}

std::string SymbolCode(std::string_view letter, std::string_view name) {
  const CardSymbol* symbol = letter.size() == 1 ? SymbolOfLetter(letter[0]) : nullptr;
  return symbol != nullptr ? std::string(1, symbol->Code) : std::string(name.substr(0, 1));
}

std::string NumberUpTo(const char* what, std::int16_t last) {
  return std::string("the number of ") + what + ", 0 to " + PlainNumber(last);
}

}  // namespace

LayoutReader::LayoutReader(std::string_view bytes, const Tables& start) : file_(bytes) {
  static_cast<Tables&>(layout_) = start;
}

LayoutResult LayoutReader::ReadHead() {
  const auto header = file_.Line();
  if (!header) return Expected("a header");
  layout_.Header = *header;
  if (!file_.Line()) return Expected("the time of saving");
  countsAt_ = file_.Offset();
  const auto counts = file_.Fields<std::int16_t, std::int16_t>();
  if (!counts || !IsWithin(std::get<0>(*counts), LastNumber) ||
      !IsWithin(std::get<1>(*counts), LastNumber)) {
    return Expected("the numbers of Regions and of Areas, each from 0 to 99");
  }
  std::tie(layout_.RegionCount, layout_.AreaCount) = *counts;
  pictureAt_ = file_.Offset();
  const auto picture = file_.Field<std::string_view>();
  if (!picture) return Expected("the path of the picture");
  layout_.PictureFile = *picture;
  return {};
}

LayoutResult LayoutReader::ReadPlayerColours() {
  for (Components& rgb : layout_.PlayerRGB) {
    const auto read = file_.Field<Components>();
    if (!read) return Expected("the twelve numbers of the player colours");
    rgb = *read;
  }
  return {};
}

LayoutResult LayoutReader::ReadMap() {
  return ReadRegionGroups().and_then([this] { return SkipComputedSections(); }).and_then([this] {
    return ReadPlaces();
  });
}

LayoutResult LayoutReader::ReadRegionGroups() {
  for (std::int16_t k = 0; k < layout_.RegionCount; ++k) {
    if (auto read = ReadRegionGroup(); !read) return read;
  }
  return {};
}

LayoutResult LayoutReader::ReadRegionGroup() {
  const auto line =
      file_.Fields<std::int16_t, std::int16_t, Components, std::string_view, std::int16_t>();
  if (!line) return Expected("a Region: number, Areas, red, green, blue, name, armies");
  const auto& [r, members, rgb, name, armies] = *line;
  if (!IsWithin(r, layout_.RegionCount)) {
    return Expected(NumberUpTo("a Region", layout_.RegionCount));
  }
  regionAt_(r) = file_.StartOffset();
  layout_.Regions(r) = {.Name = std::string(name), .Armies = armies, .RGB = rgb};
  layout_.RegionMarkers(r).RGB = rgb;
  for (std::int16_t k = 0; k < members; ++k) {
    if (auto read = ReadArea(r, rgb); !read) return read;
  }
  return {};
}

LayoutResult LayoutReader::ReadArea(std::int16_t region, const Components& rgb) {
  using Text = std::string_view;
  const auto line = file_.Fields<std::int16_t, Text, Text, Text, std::int16_t>();
  if (!line) return Expected("an Area: number, symbol, name, neighbours, corner");
  const auto& [a, letter, name, links, corner] = *line;
  if (!IsWithin(a, layout_.AreaCount)) return Expected(NumberUpTo("an Area", layout_.AreaCount));
  areaAt_(a) = file_.StartOffset();
  layout_.Areas(a) = {.Name = std::string(name),
                      .Links = std::string(links),
                      .Symbol = SymbolCode(letter, name),
                      .Region = region,
                      .Corner = corner};
  layout_.AreaMarkers(a).RGB = rgb;
  return {};
}

LayoutResult LayoutReader::SkipComputedSections() {
  return SkipHeading(BridgesHeading)
      .and_then([this] { return SkipBridges(); })
      .and_then([this] { return SkipHeading(RoutesHeading); })
      .and_then([this] { return SkipPairs("a route", layout_.AreaCount); })
      .and_then([this] { return SkipHeading(BreaksHeading); })
      .and_then([this] { return SkipPairs("a break", layout_.RegionCount); });
}

LayoutResult LayoutReader::SkipHeading(const char* text) {
  const auto line = file_.Line();
  if (!line) return Expected(std::string("the head ") + text);
  if (*line != text && oddHeadingAt_ == 0) {
    oddHeadingAt_ = file_.StartOffset();
    usualHeading_ = text;
  }
  return {};
}

LayoutResult LayoutReader::SkipBridges() {
  for (int k = 0; k < MaxBridgeLines; ++k) {
    const auto pair = file_.Fields<std::int16_t, std::string_view>();
    if (!pair || !IsWithin(std::get<0>(*pair), LastNumber)) {
      return Expected(
          "a bridge or the 0 behind the last (a save breaks off here at an Area "
          "without neighbours)");
    }
    if (std::get<0>(*pair) == 0) break;
  }
  return {};
}

LayoutResult LayoutReader::SkipPairs(const char* pair, std::int16_t count) {
  for (std::int16_t k = 0; k < count; ++k) {
    const auto read = file_.Fields<std::int16_t, std::string_view>();
    if (!read || !IsWithin(std::get<0>(*read), LastNumber)) {
      return Expected(pair + std::string(": a number from 0 to 99 and a text"));
    }
  }
  return {};
}

LayoutResult LayoutReader::ReadPlaces() {
  if (const auto head = SkipHeading(AreaPlacesHeading); !head) return head;
  const auto twips = file_.Fields<std::int16_t, std::int16_t>();
  if (!twips) return Expected("the twips of a pixel, across and down");
  std::tie(layout_.TwipsX, layout_.TwipsY) = *twips;
  // One more than the Areas: the hidden template has a place too.
  const std::int16_t areas = layout_.AreaCount;
  const auto lines = static_cast<std::int16_t>(areas + 1);
  const std::int16_t regions = layout_.RegionCount;
  return ReadPlaces(layout_.AreaMarkers, lines, areas, "an Area")
      .and_then([this] { return SkipHeading(RegionPlacesHeading); })
      .and_then([&] { return ReadPlaces(layout_.RegionMarkers, regions, regions, "a Region"); });
}

LayoutResult LayoutReader::ReadPlaces(Table<MarkerRecord>& markers, std::int16_t lines,
                                      std::int16_t last, const char* what) {
  for (std::int16_t i = 0; i < lines; ++i) {
    const auto line = file_.Fields<std::int16_t, float, float>();
    if (!line) return Expected(std::string("the place of ") + what + ": number, left, top");
    const auto& [k, left, top] = *line;
    if (!IsWithin(k, last)) return Expected(NumberUpTo(what, last));
    markers(k).Place = {left, top};
    farthestLeft_.Include(left, file_.StartOffset());
    farthestTop_.Include(top, file_.StartOffset());
  }
  return {};
}

LayoutResult LayoutReader::CheckRange(float twipsX, float twipsY) const {
  const bool left = std::isfinite(layout_.TwipsX / twipsX * farthestLeft_.Distance);
  const bool top = std::isfinite(layout_.TwipsY / twipsY * farthestTop_.Distance);
  if (left && top) return {};
  const std::size_t at = left ? farthestTop_.At : farthestLeft_.At;
  return tl::unexpected(LayoutFault{LineOf(at), "a place that can be reached"});
}

void LayoutReader::Farthest::Include(float coordinate, std::size_t at) {
  if (std::abs(coordinate) <= Distance) return;
  Distance = std::abs(coordinate);
  At = at;
}

std::vector<int> LayoutReader::TruncatedLines() const {
  std::vector<int> lines = file_.LinesOf(file_.TruncatedTexts());
  lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
  return lines;
}

tl::unexpected<LayoutFault> LayoutReader::Expected(std::string what) const {
  return tl::unexpected(
      LayoutFault{file_.LineOf(file_.StartOffset()), std::move(what), file_.Ended()});
}

tl::expected<MapLayout, LayoutFault> ReadLayout(std::string_view bytes) {
  LayoutReader reader(bytes, EmptyMap());
  const LayoutResult read =
      reader.ReadHead()
          .and_then([&] { return reader.ReadPlayerColours(); })
          .and_then([&] { return reader.ReadMap(); })
          .and_then([&] { return reader.CheckRange(UsualTwips, UsualTwips); });
  if (!read) return tl::unexpected(read.error());
  return reader.Layout();
}

}  // namespace terramark
