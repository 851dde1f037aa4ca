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
  /// A part of the text, counted in characters; of no length where the caret stands.
  struct Part {
    qsizetype Begin = 0;
    qsizetype End = 0;
  };

  void Edited(const QString& edited);
  Part Marked() const;
  QString Showable() const;
  void ShowText();
  void ShowColours();

  forms::TextBox& box_;
  /// What the edit that comes next would replace.
  Part marked_;
  bool editing_ = false;
};

}  // namespace terramark::qt
