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

/// What came in by an edit, as the box may hold it.
QString CleanedInsert(QString insert) {
  insert.replace("\r\n", " ");
  for (QChar& character : insert) {
    if (character < ' ') character = ' ';
  }
  return FromCp1252(ToCp1252(insert.normalized(QString::NormalizationForm_C)));
}

}  // namespace

QString CleanedEdit(const QString& before, const QString& edited) {
  const qsizetype shorter = std::min(before.size(), edited.size());
  qsizetype head = 0;
  while (head < shorter && before[head] == edited[head]) ++head;
  qsizetype tail = 0;
  while (tail < shorter - head &&
         before[before.size() - 1 - tail] == edited[edited.size() - 1 - tail]) {
    ++tail;
  }
  return edited.left(head) + CleanedInsert(edited.sliced(head, edited.size() - head - tail)) +
         edited.right(tail);
}

TextView::TextView(forms::TextBox& box, QWidget& container)
    : QLineEdit(&container), ControlView(box, *this), box_(box) {
  setFrame(false);
  setTextMargins(SideMargin, 0, SideMargin, 0);
  ShowText();
  ShowColours();
  connect(this, &QLineEdit::textEdited, this, &TextView::Edited);
  connect(this, &QLineEdit::cursorPositionChanged, this, [this](int, int now) { caret_ = now; });
}

void TextView::Edited(const QString& edited) {
  const QString before = FromCp1252(box_.Text);
  const int caretBefore = caret_;
  const auto behindCaret = static_cast<int>(edited.size()) - cursorPosition();
  {
    const QScopedValueRollback<bool> still(editing_, true);
    box_.Typed(ToCp1252(CleanedEdit(before, edited)));
  }
  const QString now = FromCp1252(box_.Text);
  if (now != text()) {
    ShowText();
    // An edit that was refused leaves the caret where it stood.
    setCursorPosition(now == before ? caretBefore
                                    : std::max(0, static_cast<int>(now.size()) - behindCaret));
  }
  HoldLength();
}

void TextView::ShowOwn(forms::PropertyId id) {
  // While an edit goes on, only what the control has in the end is shown.
  if (id == forms::PropertyId::Text && !editing_) ShowText();
  if (id == forms::PropertyId::BackColor || id == forms::PropertyId::ForeColor) ShowColours();
}

void TextView::ShowText() {
  const QString text = FromCp1252(box_.Text);
  HoldLength();
  if (text == this->text()) return;
  setText(text);
  // A long text shows its beginning until the caret comes to it.
  if (!hasFocus() && fontMetrics().horizontalAdvance(text) > width()) setCursorPosition(0);
}

/// Typing is held to the limit where the caret stands, instead of pushing characters out at the
/// end; a text that was assigned longer may only become shorter.
void TextView::HoldLength() {
  const std::size_t limit = std::max(box_.MaxLength, box_.Text.Get().size());
  const int most = box_.MaxLength == 0 ? std::numeric_limits<int>::max() : static_cast<int>(limit);
  if (most == maxLength()) return;
  // A new limit takes the caret to the end and the way back from earlier edits with it.
  const int caret = cursorPosition();
  setMaxLength(most);
  setCursorPosition(caret);
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
