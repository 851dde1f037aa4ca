#include "window/canvasaccessible.h"

#include <QAccessible>
#include <QStringList>
#include <algorithm>
#include <memory>
#include <utility>

#include "forms/form.h"
#include "paint/cp1252.h"
#include "paint/elidedtext.h"
#include "window/accessibleitem.h"
#include "window/canvasview.h"

namespace terramark::window {

namespace {

QString WordFor(MarkerState state) {
  switch (state) {
    case MarkerState::Current:
      return "current";
    case MarkerState::Marked:
      return "marked";
    case MarkerState::Plain:
      break;
  }
  return {};
}

/// Those that are not empty, with commas.
QString Joined(QStringList texts) {
  texts.removeAll(QString());
  return texts.join(", ");
}

bool IsLabel(const forms::Control* control) {
  return control->Kind() == forms::ControlKind::Label;
}

QAccessible::Role RoleOf(const CanvasView& canvas) {
  const bool labelled = std::ranges::any_of(canvas.Box().Children(), IsLabel);
  return labelled ? QAccessible::List : QAccessible::Graphic;
}

/// Destroyed before its label and its canvas.
class MarkerAccessible final : public AccessibleItem {
 public:
  MarkerAccessible(CanvasAccessible& canvas, const forms::Label& label)
      : AccessibleItem(canvas), canvas_(canvas), label_(label) {}

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Description) return canvas_.DescriptionOf(label_);
    return kind == QAccessible::Name ? canvas_.MarkerName(label_) : QString();
  }
  QRect rect() const override { return canvas_.ScreenRectOf(label_); }
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  QAccessible::State state() const override { return canvas_.StateOf(label_); }

 private:
  CanvasAccessible& canvas_;
  const forms::Label& label_;
};

}  // namespace

CanvasAccessible::CanvasAccessible(CanvasView& canvas)
    : QAccessibleWidget(&canvas, RoleOf(canvas)),
      canvas_(canvas),
      notice_(*std::make_unique<NoticeAccessible>(*this).release()),
      noticeId_(QAccessible::registerAccessibleInterface(&notice_)) {
}

CanvasAccessible::~CanvasAccessible() {
  QAccessible::deleteAccessibleInterface(noticeId_);
  for (const auto& [label, id] : ids_) QAccessible::deleteAccessibleInterface(id);
}

void CanvasAccessible::NotifyChanges() {
  const std::vector<const forms::Label*> markers = Markers();
  std::vector<const forms::Control*> gone;
  for (const auto& [label, told] : notified_) {
    if (!label->Visible) gone.push_back(label);
  }
  for (const forms::Control* label : gone) NotifyRemoved(*label);
  for (const forms::Label* label : markers) NotifyLabel(*label);
  const forms::Label* const now = Focused();
  if (now == focused_) return;
  focused_ = now;
  notice_.Say({});
  if (now != nullptr) {
    Send(*MarkerOf(*now), QAccessible::Focus);
  } else if (canvas_.hasFocus()) {
    Send(*this, QAccessible::Focus);
  }
}

void CanvasAccessible::NotifyLabel(const forms::Label& label) {
  QAccessibleInterface& marker = *MarkerOf(label);
  const NotifiedState now = StateNow(label);
  const auto [entry, isNew] = notified_.try_emplace(&label, now);
  if (isNew) return Send(marker, QAccessible::ObjectCreated);
  const NotifiedState before = std::exchange(entry->second, now);
  if (now.Name != before.Name) Send(marker, QAccessible::NameChanged);
  if (now.Place != before.Place) Send(marker, QAccessible::LocationChanged);
  const bool moved = now.PlaceText != before.PlaceText;
  const bool changed = moved || now.Note != before.Note;
  if (changed || now.State != before.State) Send(marker, QAccessible::DescriptionChanged);
  if (changed && focused_ == &label) {
    notice_.Say(moved ? Joined({now.PlaceText, now.Note}) : now.Note);
  }
  const bool selected = now.State != MarkerState::Plain;
  if (selected == (before.State != MarkerState::Plain)) return;
  Send(marker, selected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
}

void CanvasAccessible::NotifyRemoved(const forms::Control& label) {
  if (notified_.erase(&label) == 0) return;
  Send(*QAccessible::accessibleInterface(ids_.at(&label)), QAccessible::ObjectDestroyed);
}

void CanvasAccessible::Forget(const forms::Control& label) {
  NotifyRemoved(label);
  if (focused_ == &label) {
    focused_ = nullptr;
    notice_.Say({});
  }
  const auto id = ids_.find(&label);
  if (id == ids_.end()) return;
  QAccessible::deleteAccessibleInterface(id->second);
  ids_.erase(id);
}

QString CanvasAccessible::MarkerName(const forms::Label& label) const {
  return paint::ElidedText(label.AccessibleNameOf ? label.AccessibleNameOf(label.Index())
                                                  : label.Caption.Get());
}

CanvasAccessible::NotifiedState CanvasAccessible::StateNow(const forms::Label& label) const {
  const auto place = [](const char* words, forms::PixelPoint corner) {
    return QString(words).arg(corner.X).arg(corner.Y);
  };
  NotifiedState now;
  now.Name = MarkerName(label);
  now.State = MarkerStateOf(label);
  now.Place = ScreenRectOf(label);
  if (const auto drag = label.ParentForm()->Pointer.KeyDragOf(label)) {
    // What is said at each step of a drag is the place alone.
    now.PlaceText = place("held at %1, %2", drag->TopLeft);
    return now;
  }
  now.PlaceText = place("at %1, %2", PixelBounds(label).TopLeft());
  if (label.AccessibleDescriptionOf)
    now.Note = paint::FromCp1252(label.AccessibleDescriptionOf(label.Index()));
  return now;
}

QString CanvasAccessible::DescriptionOf(const forms::Label& label) const {
  const NotifiedState now = StateNow(label);
  return Joined({now.PlaceText, now.Note, WordFor(now.State)});
}

QRect CanvasAccessible::ScreenRectOf(const forms::Label& label) const {
  const QRect inBox = canvas_.WidgetRectOf(label);
  return {canvas_.mapToGlobal(inBox.topLeft()), inBox.size()};
}

QAccessible::State CanvasAccessible::StateOf(const forms::Label& label) const {
  QAccessible::State state = QAccessibleWidget::state();
  state.multiSelectable = false;
  state.focusable = state.selectable = true;
  state.selected = MarkerStateOf(label) != MarkerState::Plain;
  state.focused = Focused() == &label;
  state.invisible = state.invisible || !label.Visible;
  state.offscreen = state.offscreen || !canvas_.Viewport().intersects(canvas_.WidgetRectOf(label));
  return state;
}

std::vector<const forms::Label*> CanvasAccessible::Markers() const {
  std::vector<const forms::Label*> markers;
  for (const forms::Control* child : canvas_.Box().Children()) {
    if (IsLabel(child) && child->Visible)
      markers.push_back(static_cast<const forms::Label*>(child));
  }
  // The order of the stack is not used: it changes with every press, and the numbers of the items
  // would change with it.
  std::ranges::sort(markers, {}, [](const forms::Label* label) {
    return std::pair(label->ListOrder, label->Index());
  });
  return markers;
}

QAccessibleInterface* CanvasAccessible::MarkerOf(const forms::Label& label) const {
  const auto [entry, isNew] = ids_.try_emplace(&label);
  if (isNew) {
    // Qt takes a parent only as non-const.
    auto& list = const_cast<CanvasAccessible&>(*this);
    entry->second = Register(std::make_unique<MarkerAccessible>(list, label));
  }
  return QAccessible::accessibleInterface(entry->second);
}

const forms::Label* CanvasAccessible::Focused() const {
  const forms::Control* const item = canvas_.VisibleCursorItem();
  const bool label = item != nullptr && IsLabel(item);
  return label ? static_cast<const forms::Label*>(item) : nullptr;
}

int CanvasAccessible::childCount() const {
  return static_cast<int>(Markers().size()) + QAccessibleWidget::childCount() + 1;
}

QAccessibleInterface* CanvasAccessible::child(int index) const {
  const std::vector<const forms::Label*> markers = Markers();
  const auto count = static_cast<int>(markers.size());
  if (index == childCount() - 1) return &notice_;
  if (index < 0 || index >= count) return QAccessibleWidget::child(index - count);
  return MarkerOf(*markers[static_cast<std::size_t>(index)]);
}

int CanvasAccessible::indexOfChild(const QAccessibleInterface* child) const {
  if (child == &notice_) return childCount() - 1;
  const std::vector<const forms::Label*> markers = Markers();
  const auto at = std::ranges::find_if(
      markers, [&](const forms::Label* label) { return MarkerOf(*label) == child; });
  if (at != markers.end()) return static_cast<int>(at - markers.begin());
  const int other = QAccessibleWidget::indexOfChild(child);
  return other < 0 ? -1 : other + static_cast<int>(markers.size());
}

QAccessibleInterface* CanvasAccessible::childAt(int x, int y) const {
  const auto& stack = canvas_.Box().Children();
  const auto hit = std::find_if(stack.rbegin(), stack.rend(), [&](const forms::Control* child) {
    return IsLabel(child) && child->Visible &&
           ScreenRectOf(static_cast<const forms::Label&>(*child)).contains(x, y);
  });
  if (hit == stack.rend() || !rect().contains(x, y)) {
    QAccessibleInterface* const part = QAccessibleWidget::childAt(x, y);
    return part == &notice_ ? nullptr : part;
  }
  return MarkerOf(static_cast<const forms::Label&>(**hit));
}

QAccessibleInterface* CanvasAccessible::focusChild() const {
  const forms::Label* const label = Focused();
  return label != nullptr ? MarkerOf(*label) : QAccessibleWidget::focusChild();
}

QAccessible::State CanvasAccessible::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.multiSelectable = role() == QAccessible::List;
  return state;
}

}  // namespace terramark::window
