#include "window/messageaccess.h"

#include <algorithm>
#include <memory>

#include "shell/colours.h"
#include "window/cp1252.h"
#include "window/showntext.h"

namespace terramark::window {

namespace {

const forms::Label& LabelOf(const LabelView& view) {
  return static_cast<const forms::Label&>(view.Shown());
}

void Send(QAccessibleInterface& about, QAccessible::Event type) {
  QAccessibleEvent event(&about, type);
  QAccessible::updateAccessibility(&event);
}

/// Goes before its parent does.
class TextAccess final : public QAccessibleInterface {
 public:
  TextAccess(MessageAccess& message, QAccessible::Role role) : message_(message), role_(role) {}

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return message_.window(); }
  QAccessibleInterface* parent() const override { return &message_; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name && Shows() ? message_.Caption() : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
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

  MessageAccess& message_;
  const QAccessible::Role role_;
};

}  // namespace

QString SpokenText(const forms::Label& label) {
  const QString name = FromCp1252(label.SpokenName);
  return QString(name + ' ' + ShownText(label.Caption, Qt::ElideMiddle).trimmed()).trimmed();
}

MessageAccess::MessageAccess(LabelView& view)
    : QAccessibleWidget(&view, QAccessible::Grouping), view_(view) {
  const auto make = [this](QAccessible::Role role) {
    return QAccessible::registerAccessibleInterface(
        std::make_unique<TextAccess>(*this, role).release());
  };
  children_ = {make(QAccessible::AlertMessage), make(QAccessible::StatusBar)};
  // What stands there by now may have been read without having been announced.
  shown_ = Showing();
}

MessageAccess::~MessageAccess() {
  for (const QAccessible::Id id : children_) QAccessible::deleteAccessibleInterface(id);
}

void MessageAccess::Announce() {
  if (QAccessibleInterface* before = ChildOf(shown_)) Send(*before, QAccessible::ObjectHide);
  shown_ = Showing();
  QAccessibleInterface* const now = ChildOf(shown_);
  if (now == nullptr) return;
  // The name first: what comes to show is announced by it.
  Send(*now, QAccessible::NameChanged);
  Send(*now, QAccessible::ObjectShow);
}

QAccessible::Role MessageAccess::Showing() const {
  const forms::Label& label = LabelOf(view_);
  if (label.Caption.Get().empty()) return QAccessible::NoRole;
  return label.BackColor == ClrRed ? QAccessible::AlertMessage : QAccessible::StatusBar;
}

QString MessageAccess::Caption() const {
  return ShownText(LabelOf(view_).Caption, Qt::ElideMiddle);
}

QAccessibleInterface* MessageAccess::child(int index) const {
  if (index < 0 || index >= childCount()) return nullptr;
  return QAccessible::accessibleInterface(children_[static_cast<std::size_t>(index)]);
}

int MessageAccess::indexOfChild(const QAccessibleInterface* child) const {
  for (int i = 0; i < childCount(); ++i) {
    if (this->child(i) == child) return i;
  }
  return -1;
}

QAccessibleInterface* MessageAccess::childAt(int x, int y) const {
  return rect().contains(x, y) ? ChildOf(Showing()) : nullptr;
}

QAccessibleInterface* MessageAccess::ChildOf(QAccessible::Role role) const {
  for (int i = 0; i < childCount(); ++i) {
    if (child(i)->role() == role) return child(i);
  }
  return nullptr;
}

SilentAccess::SilentAccess(LabelView& view)
    : QAccessibleWidget(&view, QAccessible::StaticText), view_(view) {
}

QString SilentAccess::text(QAccessible::Text kind) const {
  return kind == QAccessible::Name ? SpokenText(LabelOf(view_)) : QAccessibleWidget::text(kind);
}

}  // namespace terramark::window
