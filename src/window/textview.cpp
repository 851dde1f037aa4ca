#include "window/textview.h"

#include <QInputMethodEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <algorithm>
#include <limits>

#include "paint/cp1252.h"
#include "paint/frames.h"
#include "paint/screencolour.h"

namespace terramark::window {

namespace {

constexpr int SideMargin = 2;

/// The box shows only the beginning of a longer text; the rest stays unchanged, also when the
/// beginning is edited.
constexpr std::size_t MaxShownBytes = 65536;

/// An inserted text as the box may hold it: composed, with blanks for line breaks and tabs, and "?"
/// for a character that code page 1252 lacks.
std::string Cleaned(QString insert) {
  insert.replace("\r\n", " ");
  for (QChar& character : insert) {
    if (character < ' ') character = ' ';
  }
  return paint::ToCp1252(paint::ComposedForm(insert));
}

/// An edit: what was cut and inserted, from an offset of the text on.
struct Edit {
  qsizetype At;
  qsizetype Cut;
  QString Insert;
};

/// What an edit replaced, found from the selection before it and the caret after it: nothing
/// changes behind the caret, nor before the selection or the caret.
Edit EditBetween(const QString& before, const QString& after, qsizetype markedFrom,
                 qsizetype caret) {
  const qsizetype at = std::min(markedFrom, caret);
  const qsizetype cut = before.size() - at - (after.size() - caret);
  if (cut >= 0 && before.left(at) == after.left(at) &&
      before.sliced(at + cut) == after.sliced(caret)) {
    return {at, cut, after.sliced(at, caret - at)};
  }
  // A redo, or an input method, has changed another place.
  return {0, before.size(), after};
}

}  // namespace

TextView::TextView(forms::TextBox& box, QWidget& container)
    : QLineEdit(&container), ControlView(box, *this), box_(box) {
  setFrame(false);
  setTextMargins(SideMargin, 0, SideMargin, 0);
  SetMaxLengthFor(0);
  ShowText();
  ShowColours();
  const auto note = [this] {
    if (!editing_) SaveSelection();
  };
  connect(this, &QLineEdit::textEdited, this, &TextView::Edited);
  connect(this, &QLineEdit::cursorPositionChanged, this, note);
  connect(this, &QLineEdit::selectionChanged, this, note);
}

void TextView::SaveSelection() {
  caret_ = cursorPosition();
  selectionStart_ = hasSelectedText() ? selectionStart() : caret_;
  selectionSize_ = static_cast<int>(selectedText().size());
}

void TextView::Edited(const QString& edited) {
  if (composing_) return;
  const QScopedValueRollback<bool> still(editing_, true);
  const QString before = ShownPart();
  const auto hidden = static_cast<qsizetype>(box_.Text.Get().size()) - before.size();
  ApplyEdit(before, edited);
  if (const QString now = ShownPart(); now != text()) {
    // The control may have accepted less than the line shows.
    const auto size = static_cast<qsizetype>(box_.Text.Get().size());
    const int caret = cursorPosition() - static_cast<int>(edited.size() + hidden - size);
    if (now == before) {
      RestoreSelection();
    } else {
      ShowText();
      setCursorPosition(std::clamp(caret, 0, static_cast<int>(now.size())));
    }
  }
  SaveSelection();
}

void TextView::ApplyEdit(const QString& before, const QString& edited) {
  if (isRedoAvailable()) {
    // An undo: the control has had this text before, so the limit need not be applied.
    const auto shown = static_cast<std::size_t>(before.size());
    box_.Text = paint::ToCp1252(edited) + box_.Text.Get().substr(shown);
    return;
  }
  const Edit edit = EditBetween(before, edited, selectionStart_, cursorPosition());
  box_.Edited(static_cast<std::size_t>(edit.At), static_cast<std::size_t>(edit.Cut),
              Cleaned(edit.Insert));
}

/// After an edit that was refused or changed nothing, caret and selection are as before.
void TextView::RestoreSelection() {
  ShowText();
  const bool backwards = caret_ == selectionStart_;
  setSelection(backwards ? selectionStart_ + selectionSize_ : selectionStart_,
               backwards ? -selectionSize_ : selectionSize_);
}

void TextView::inputMethodEvent(QInputMethodEvent* event) {
  if (event->commitString().isEmpty() && event->replacementLength() == 0) return Compose(*event);
  if (event->preeditString().isEmpty()) return Commit(*event);
  // One after the other: when the text is set anew for the first, the line loses the second.
  QInputMethodEvent first;
  first.setCommitString(event->commitString(), event->replacementStart(),
                        event->replacementLength());
  Commit(first);
  QInputMethodEvent second(event->preeditString(), event->attributes());
  Compose(second);
}

void TextView::Commit(QInputMethodEvent& event) {
  // For the control this is a key that makes a character.
  box_.KeyPress.Raise({box_.Index()});
  {
    // Qt moves the caret before it reports the edit.
    const QScopedValueRollback<bool> still(editing_, true);
    QLineEdit::inputMethodEvent(&event);
  }
  SaveSelection();
}

/// The line removes a selected part at once. The control receives that together with what replaces
/// it, as with a key, or not at all.
void TextView::Compose(QInputMethodEvent& event) {
  const QScopedValueRollback<bool> still(editing_, true);
  {
    const QScopedValueRollback<bool> open(composing_, true);
    QLineEdit::inputMethodEvent(&event);
  }
  if (text() != ShownPart()) {
    if (!event.preeditString().isEmpty()) return;
    RestoreSelection();
  }
  SaveSelection();
}

void TextView::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  // Text that was composed over a selection and not committed is gone.
  if (!editing_) ShowText();
}

void TextView::ShowOwn(forms::PropertyId id) {
  // During an edit only the control's final text is shown.
  if (id == forms::PropertyId::Text && !editing_) ShowText();
  if (id == forms::PropertyId::Selection) {
    // Selected from the end to the front, so that the beginning of a long text is visible.
    const auto size = static_cast<int>(text().size());
    setSelection(size, -size);
  }
  if (id == forms::PropertyId::BackColor || id == forms::PropertyId::ForeColor) ShowColours();
}

QString TextView::ShownPart() const {
  return paint::FromCp1252(box_.Text.Get().substr(0, MaxShownBytes));
}

void TextView::ShowText() {
  const QString text = ShownPart();
  if (text == this->text()) return;
  SetMaxLengthFor(text.size());
  setText(text);
  // A long text shows its beginning until the caret enters it.
  if (!hasFocus() && fontMetrics().horizontalAdvance(text) > width()) setCursorPosition(0);
}

/// The control decides what it cuts at its limit. The line has the same limit, so that what it
/// refuses itself does not end the undo history; but a longer text that was assigned must fit.
void TextView::SetMaxLengthFor(qsizetype size) {
  const auto limit = std::max(static_cast<qsizetype>(box_.MaxLength), size);
  setMaxLength(box_.MaxLength == 0 ? std::numeric_limits<int>::max() : static_cast<int>(limit));
}

void TextView::ShowColours() {
  QPalette colours = palette();
  colours.setColor(QPalette::Base, paint::ScreenColour(box_.BackColor));
  colours.setColor(QPalette::Disabled, QPalette::Base, colours.color(QPalette::Button));
  colours.setColor(QPalette::Active, QPalette::Text, paint::ScreenColour(box_.ForeColor));
  colours.setColor(QPalette::Inactive, QPalette::Text, paint::ScreenColour(box_.ForeColor));
  setPalette(colours);
}

void TextView::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  paint::DrawFrame(painter, rect(), Qt::black);
}

}  // namespace terramark::window
