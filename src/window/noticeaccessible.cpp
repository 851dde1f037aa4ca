#include "window/noticeaccessible.h"

namespace terramark::window {

NoticeAccessible::NoticeAccessible(QAccessibleWidget& widget)
    : AccessibleItem(widget), widget_(widget) {
}

void NoticeAccessible::Say(const QString& text) {
  if (!text_.isEmpty()) Send(*this, QAccessible::ObjectHide);
  text_ = text;
  if (text_.isEmpty()) return;
  // The name first: it is what is said of a thing that becomes visible.
  Send(*this, QAccessible::NameChanged);
  Send(*this, QAccessible::ObjectShow);
}

QString NoticeAccessible::text(QAccessible::Text kind) const {
  return kind == QAccessible::Name ? text_ : QString();
}

QAccessible::State NoticeAccessible::state() const {
  QAccessible::State state = widget_.state();
  state.focusable = state.focused = false;
  state.readOnly = true;
  state.invisible = state.invisible || text_.isEmpty();
  return state;
}

}  // namespace terramark::window
