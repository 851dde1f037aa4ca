#include "window/canvasaccess.h"

#include <algorithm>
#include <memory>
#include <tuple>
#include <utility>

#include "shell/markers.h"
#include "window/canvasview.h"
#include "window/showntext.h"

namespace terramark::window {

namespace {

const forms::PictureBox& BoxOf(const CanvasView& canvas) {
  return static_cast<const forms::PictureBox&>(canvas.Shown());
}

bool IsLabel(const forms::Control* control) {
  return control->Kind() == forms::ControlKind::Label;
}

QAccessible::Role RoleOf(const CanvasView& canvas) {
  const bool labelled = std::ranges::any_of(BoxOf(canvas).Children(), IsLabel);
  return labelled ? QAccessible::List : QAccessible::Graphic;
}

void Send(QAccessibleInterface& about, QAccessible::Event type) {
  QAccessibleEvent event(&about, type);
  QAccessible::updateAccessibility(&event);
}

/// Goes before its label and its canvas do.
class MarkerAccess final : public QAccessibleInterface {
 public:
  MarkerAccess(CanvasAccess& canvas, const forms::Label& label) : canvas_(canvas), label_(label) {}

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return canvas_.window(); }
  QAccessibleInterface* parent() const override { return &canvas_; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? canvas_.NameOf(label_) : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override { return canvas_.PlaceOf(label_); }
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  QAccessible::State state() const override { return canvas_.StateOf(label_); }

 private:
  CanvasAccess& canvas_;
  const forms::Label& label_;
};

}  // namespace

CanvasAccess::CanvasAccess(CanvasView& canvas)
    : QAccessibleWidget(&canvas, RoleOf(canvas)), canvas_(canvas) {
}

CanvasAccess::~CanvasAccess() {
  for (const auto& [label, id] : ids_) QAccessible::deleteAccessibleInterface(id);
}

void CanvasAccess::Tell() {
  const std::vector<const forms::Label*> markers = Markers();
  std::vector<const forms::Control*> gone;
  for (const auto& [label, told] : told_) {
    if (!label->Visible) gone.push_back(label);
  }
  for (const forms::Control* label : gone) TellGone(*label);
  for (const forms::Label* label : markers) TellLabel(*label);
  const forms::Label* const now = Focused();
  if (now == focused_) return;
  focused_ = now;
  if (now != nullptr) {
    Send(*MarkerOf(*now), QAccessible::Focus);
  } else if (canvas_.hasFocus()) {
    Send(*this, QAccessible::Focus);
  }
}

void CanvasAccess::TellLabel(const forms::Label& label) {
  QAccessibleInterface& marker = *MarkerOf(label);
  const Told now{NameOf(label), PlaceOf(label), LookOf(label) != Look::Plain};
  const auto [entry, isNew] = told_.try_emplace(&label, now);
  if (isNew) return Send(marker, QAccessible::ObjectCreated);
  const Told before = std::exchange(entry->second, now);
  if (now.Name != before.Name) Send(marker, QAccessible::NameChanged);
  if (now.Place != before.Place) Send(marker, QAccessible::LocationChanged);
  if (now.Selected == before.Selected) return;
  Send(marker, now.Selected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
}

void CanvasAccess::TellGone(const forms::Control& label) {
  if (told_.erase(&label) == 0) return;
  Send(*QAccessible::accessibleInterface(ids_.at(&label)), QAccessible::ObjectDestroyed);
}

void CanvasAccess::Gone(const forms::Control& label) {
  TellGone(label);
  if (focused_ == &label) focused_ = nullptr;
  const auto id = ids_.find(&label);
  if (id == ids_.end()) return;
  QAccessible::deleteAccessibleInterface(id->second);
  ids_.erase(id);
}

QString CanvasAccess::NameOf(const forms::Label& label) const {
  return ShownText(label.Spoken ? label.Spoken(label.Index()) : label.Caption.Get());
}

QRect CanvasAccess::PlaceOf(const forms::Label& label) const {
  const QRect inBox = canvas_.PlaceOf(label);
  return {canvas_.mapToGlobal(inBox.topLeft()), inBox.size()};
}

QAccessible::State CanvasAccess::StateOf(const forms::Label& label) const {
  const forms::PictureBox& box = BoxOf(canvas_);
  const QRect view(0, 0, box.ViewWidth(), box.ViewHeight());
  QAccessible::State state = QAccessibleWidget::state();
  state.multiSelectable = false;
  state.focusable = state.selectable = true;
  state.selected = LookOf(label) != Look::Plain;
  state.focused = Focused() == &label;
  state.invisible = state.invisible || !label.Visible;
  state.offscreen = state.offscreen || !view.intersects(canvas_.PlaceOf(label));
  return state;
}

std::vector<const forms::Label*> CanvasAccess::Markers() const {
  std::vector<const forms::Label*> markers;
  for (const forms::Control* child : BoxOf(canvas_).Children()) {
    if (IsLabel(child) && child->Visible)
      markers.push_back(static_cast<const forms::Label*>(child));
  }
  // By their places in the stack they would change their numbers with every press.
  std::ranges::sort(markers, {}, [](const forms::Label* label) {
    return std::tuple<const std::string&, int>(label->Name(), label->Index());
  });
  return markers;
}

QAccessibleInterface* CanvasAccess::MarkerOf(const forms::Label& label) const {
  const auto [entry, isNew] = ids_.try_emplace(&label);
  if (isNew) {
    auto& list = const_cast<CanvasAccess&>(*this);
    entry->second = QAccessible::registerAccessibleInterface(
        std::make_unique<MarkerAccess>(list, label).release());
  }
  return QAccessible::accessibleInterface(entry->second);
}

const forms::Label* CanvasAccess::Focused() const {
  const forms::Control* const ringed = BoxOf(canvas_).Ringed;
  const bool there = ringed != nullptr && ringed->Visible && IsLabel(ringed);
  return there && canvas_.hasFocus() ? static_cast<const forms::Label*>(ringed) : nullptr;
}

int CanvasAccess::childCount() const {
  return static_cast<int>(Markers().size()) + QAccessibleWidget::childCount();
}

QAccessibleInterface* CanvasAccess::child(int index) const {
  const std::vector<const forms::Label*> markers = Markers();
  const auto count = static_cast<int>(markers.size());
  if (index < 0 || index >= count) return QAccessibleWidget::child(index - count);
  return MarkerOf(*markers[static_cast<std::size_t>(index)]);
}

int CanvasAccess::indexOfChild(const QAccessibleInterface* child) const {
  const std::vector<const forms::Label*> markers = Markers();
  const auto at = std::ranges::find_if(
      markers, [&](const forms::Label* label) { return MarkerOf(*label) == child; });
  if (at != markers.end()) return static_cast<int>(at - markers.begin());
  const int other = QAccessibleWidget::indexOfChild(child);
  return other < 0 ? -1 : other + static_cast<int>(markers.size());
}

QAccessibleInterface* CanvasAccess::childAt(int x, int y) const {
  const auto& stack = BoxOf(canvas_).Children();
  const auto hit = std::find_if(stack.rbegin(), stack.rend(), [&](const forms::Control* child) {
    return IsLabel(child) && child->Visible &&
           PlaceOf(static_cast<const forms::Label&>(*child)).contains(x, y);
  });
  if (hit == stack.rend() || !rect().contains(x, y)) return QAccessibleWidget::childAt(x, y);
  return MarkerOf(static_cast<const forms::Label&>(**hit));
}

QAccessibleInterface* CanvasAccess::focusChild() const {
  const forms::Label* const label = Focused();
  return label != nullptr ? MarkerOf(*label) : QAccessibleWidget::focusChild();
}

QAccessible::State CanvasAccess::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.multiSelectable = role() == QAccessible::List;
  return state;
}

}  // namespace terramark::window
