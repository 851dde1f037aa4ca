#include "qt/textview.h"

#include <QPainter>
#include <QScopedValueRollback>
#include <algorithm>
#include <limits>

#include "qt/cp1252.h"
#include "qt/look.h"

namespace terramark::qt {

namespace {

constexpr int SideMargin = 2;

/// Of a longer text the box holds the beginning; what is behind stays as it is, also when the
/// beginning is edited.
constexpr std::size_t MostShown = 65536;

/// What came in by an edit, as the box may hold it: composed, a line break or tab a blank, and "?"
/// for a character that code page 1252 lacks.
std::string Cleaned(QString insert) {
  insert.replace("\r\n", " ");
  for (QChar& character : insert) {
    if (character < ' ') character = ' ';
  }
  return ToCp1252(ComposedForm(insert));
}

/// An edit, from a place of the text on.
struct Edit {
  qsizetype At;
  qsizetype Cut;
  QString Insert;
};

/// What an edit replaced, by the part of the text that was marked before it and the caret after it:
/// behind the caret, and before the part or the caret, nothing changes.
Edit EditBetween(const QString& before, const QString& after, qsizetype markedFrom,
                 qsizetype caret) {
  const qsizetype at = std::min(markedFrom, caret);
  const qsizetype cut = before.size() - at - (after.size() - caret);
  if (cut >= 0 && before.left(at) == after.left(at) &&
      before.sliced(at + cut) == after.sliced(caret)) {
    return {at, cut, after.sliced(at, caret - at)};
  }
  // An edit that was taken back has changed some other place.
  return {0, before.size(), after};
}

}  // namespace

TextView::TextView(forms::TextBox& box, QWidget& container)
    : QLineEdit(&container), ControlView(box, *this), box_(box) {
  setFrame(false);
  setTextMargins(SideMargin, 0, SideMargin, 0);
  // The control knows the limit, and what gives way to it.
  setMaxLength(std::numeric_limits<int>::max());
  ShowText();
  ShowColours();
  const auto mark = [this] {
    if (!editing_) marked_ = Marked();
  };
  connect(this, &QLineEdit::textEdited, this, &TextView::Edited);
  connect(this, &QLineEdit::cursorPositionChanged, this, mark);
  connect(this, &QLineEdit::selectionChanged, this, mark);
}

TextView::Part TextView::Marked() const {
  if (hasSelectedText()) return {selectionStart(), selectionEnd()};
  return {cursorPosition(), cursorPosition()};
}

void TextView::Edited(const QString& edited) {
  const QScopedValueRollback<bool> still(editing_, true);
  const QString before = Showable();
  const Edit edit = EditBetween(before, edited, marked_.Begin, cursorPosition());
  const std::size_t sizeBefore = box_.Text.Get().size();
  box_.Edited(static_cast<std::size_t>(edit.At), static_cast<std::size_t>(edit.Cut),
              Cleaned(edit.Insert));
  if (const QString now = Showable(); now != text()) {
    ShowText();
    const auto grown = static_cast<qsizetype>(box_.Text.Get().size() - sizeBefore);
    // An edit that was refused leaves the caret where it stood.
    const qsizetype caret = now == before ? marked_.End : edit.At + edit.Cut + grown;
    setCursorPosition(static_cast<int>(std::clamp<qsizetype>(caret, 0, now.size())));
  }
  marked_ = Marked();
}

void TextView::ShowOwn(forms::PropertyId id) {
  // While an edit goes on, only what the control has in the end is shown.
  if (id == forms::PropertyId::Text && !editing_) ShowText();
  if (id == forms::PropertyId::Selection) selectAll();
  if (id == forms::PropertyId::BackColor || id == forms::PropertyId::ForeColor) ShowColours();
}

QString TextView::Showable() const {
  return FromCp1252(box_.Text.Get().substr(0, MostShown));
}

void TextView::ShowText() {
  const QString text = Showable();
  if (text == this->text()) return;
  setText(text);
  // A long text shows its beginning until the caret comes to it.
  if (!hasFocus() && fontMetrics().horizontalAdvance(text) > width()) setCursorPosition(0);
}

void TextView::ShowColours() {
  QPalette colours = palette();
  colours.setColor(QPalette::Base, ScreenColour(box_.BackColor));
  colours.setColor(QPalette::Active, QPalette::Text, ScreenColour(box_.ForeColor));
  colours.setColor(QPalette::Inactive, QPalette::Text, ScreenColour(box_.ForeColor));
  setPalette(colours);
}

void TextView::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  painter.setPen(Qt::black);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace terramark::qt
