#include "canvas/markerwalk.h"

#include <algorithm>
#include <vector>

#include "shell/form1.h"

namespace terramark {

namespace {

/// Without the templates, which are never visible.
std::vector<forms::Label*> VisibleMarkers(Form1& form) {
  std::vector<forms::Label*> markers;
  const auto add = [&markers](forms::Label& marker) {
    if (marker.Visible) markers.push_back(&marker);
  };
  form.ArmyAt.ForEach(add);
  form.Continent.ForEach(add);
  return markers;
}

}  // namespace

forms::Label* MarkerFrom(Form1& form, const forms::Control* marker, int steps) {
  const std::vector<forms::Label*> markers = VisibleMarkers(form);
  if (markers.empty()) return nullptr;
  const int count = static_cast<int>(markers.size());
  const auto found = std::ranges::find(markers, marker);
  // Backwards from after the last marker, forwards from before the first.
  const int outside = steps < 0 ? count : -1;
  const int at = found != markers.end() ? static_cast<int>(found - markers.begin()) : outside;
  return markers[static_cast<std::size_t>(((at + steps) % count + count) % count)];
}

forms::Label* FirstMarker(Form1& form) {
  return MarkerFrom(form, nullptr, 1);
}

forms::Label* LastMarker(Form1& form) {
  return MarkerFrom(form, nullptr, -1);
}

}  // namespace terramark
