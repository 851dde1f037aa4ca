// A text box of one line. What is typed or pasted goes to the control, and the box then shows the
// control's text.
#pragma once

#include <QLineEdit>

#include "forms/controls.h"
#include "window/controlview.h"

namespace terramark::window {

class TextView : public QLineEdit, public ControlView {
 public:
  TextView(forms::TextBox& box, QWidget& container);

  MouseUse Mouse() const override { return MouseUse::WidgetToo; }

 protected:
  void ShowOwn(forms::PropertyId id) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Edited(const QString& edited);
  void ApplyEdit(const QString& before, const QString& edited);
  void Commit(QInputMethodEvent& event);
  void Compose(QInputMethodEvent& event);
  void RestoreSelection();
  void SaveSelection();
  /// The beginning of the control's text, as much as the box shows.
  QString ShownPart() const;
  void SetMaxLengthFor(qsizetype size);
  void ShowText();
  void ShowColours();

  forms::TextBox& box_;
  /// Before the next edit: the caret, and the start of the selection, or the caret where nothing is
  /// selected.
  int caret_ = 0;
  int selectionStart_ = 0;
  int selectionSize_ = 0;
  bool editing_ = false;
  /// While an input method composes a text that may still be cancelled.
  bool composing_ = false;
};

}  // namespace terramark::window
