#include "window/messageaccessible.h"

#include <algorithm>
#include <memory>

#include "paint/elidedtext.h"
#include "window/accessibleitem.h"
#include "window/accessiblenames.h"
#include "window/noticeaccessible.h"

namespace terramark::window {

namespace {

/// Destroyed before its parent.
class MessageTextAccessible final : public AccessibleItem {
 public:
  MessageTextAccessible(MessageAccessible& message, QAccessible::Role role)
      : AccessibleItem(message), message_(message), role_(role) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name && Shows() ? message_.Caption() : QString();
  }
  QRect rect() const override { return Shows() ? message_.rect() : QRect(); }
  QAccessible::Role role() const override { return role_; }
  QAccessible::State state() const override {
    QAccessible::State state = message_.state();
    state.readOnly = true;
    state.invisible = state.invisible || !Shows();
    return state;
  }

 private:
  bool Shows() const { return message_.Showing() == role_; }

  MessageAccessible& message_;
  const QAccessible::Role role_;
};

}  // namespace

MessageAccessible::MessageAccessible(LabelView& view)
    : QAccessibleWidget(&view, QAccessible::Grouping), view_(view) {
  const auto make = [this](QAccessible::Role role) {
    return Register(std::make_unique<MessageTextAccessible>(*this, role));
  };
  children_ = {make(QAccessible::AlertMessage), make(QAccessible::StatusBar),
               Register(std::make_unique<NoticeAccessible>(*this))};
  // An earlier text may have been read by a tool without having been announced.
  shown_ = Showing();
}

MessageAccessible::~MessageAccessible() {
  for (const QAccessible::Id id : children_) QAccessible::deleteAccessibleInterface(id);
}

void MessageAccessible::Announce() {
  if (QAccessibleInterface* before = ChildOf(shown_)) Send(*before, QAccessible::ObjectHide);
  shown_ = Showing();
  if (QAccessibleInterface* const now = ChildOf(shown_)) {
    // The name first: readers announce the name of what becomes visible.
    Send(*now, QAccessible::NameChanged);
    Send(*now, QAccessible::ObjectShow);
  }
  static_cast<NoticeAccessible&>(*child(childCount() - 1)).Say(Caption());
}

QAccessible::Role MessageAccessible::Showing() const {
  const forms::Label& label = view_.Label();
  if (label.Caption.Get().empty()) return QAccessible::NoRole;
  return label.Alert ? QAccessible::AlertMessage : QAccessible::StatusBar;
}

QString MessageAccessible::Caption() const {
  return paint::ElidedText(view_.Label().Caption, Qt::ElideMiddle);
}

QAccessibleInterface* MessageAccessible::child(int index) const {
  if (index < 0 || index >= childCount()) return nullptr;
  return QAccessible::accessibleInterface(children_[static_cast<std::size_t>(index)]);
}

int MessageAccessible::indexOfChild(const QAccessibleInterface* child) const {
  for (int i = 0; i < childCount(); ++i) {
    if (this->child(i) == child) return i;
  }
  return -1;
}

QAccessibleInterface* MessageAccessible::childAt(int x, int y) const {
  return rect().contains(x, y) ? ChildOf(Showing()) : nullptr;
}

QAccessibleInterface* MessageAccessible::ChildOf(QAccessible::Role role) const {
  for (int i = 0; i < childCount(); ++i) {
    if (child(i)->role() == role) return child(i);
  }
  return nullptr;
}

OnRequestAccessible::OnRequestAccessible(LabelView& view)
    : QAccessibleWidget(&view, QAccessible::StaticText), view_(view) {
}

QString OnRequestAccessible::text(QAccessible::Text kind) const {
  return kind == QAccessible::Name ? AccessibleText(view_.Label()) : QAccessibleWidget::text(kind);
}

}  // namespace terramark::window
