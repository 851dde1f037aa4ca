// A text box of one line. What is typed or pasted goes to the control, and the box then shows what
// the control made of it.
#pragma once

#include <QLineEdit>

#include "forms/controls.h"
#include "qt/controlview.h"

namespace terramark::qt {

class TextView : public QLineEdit, public ControlView {
 public:
  TextView(forms::TextBox& box, QWidget& container);

  bool OwnMouse() const override { return true; }

 protected:
  void ShowOwn(forms::PropertyId id) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Edited(const QString& edited);
  void ShowText();
  void HoldLength();
  void ShowColours();

  forms::TextBox& box_;
  /// Where the caret stood before the edit that is going on.
  int caret_ = 0;
  bool editing_ = false;
};

/// What an edit from one text to another leaves in a box: the characters that came in are composed,
/// a line break or tab among them becomes a blank, and one that code page 1252 lacks becomes "?".
/// All other characters stay as they are.
QString CleanedEdit(const QString& before, const QString& edited);

}  // namespace terramark::qt
