#include "window/modalform.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include "paint/frames.h"

namespace terramark::window {

namespace {

constexpr int BorderWidth = 2;  // pixels, as are all sizes here
constexpr int CaptionHeight = 20;

}  // namespace

ModalForm::ModalForm(forms::Form& form, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), inside_(form, *this) {
  const QSize size = inside_.DesignSize();
  inside_.setGeometry({QPoint(BorderWidth, BorderWidth + CaptionHeight), size});
  inside_.OnUnload = [this] { accept(); };
  inside_.ApplyWindowProperties();
  caption_.setGeometry(BorderWidth, BorderWidth, size.width(), CaptionHeight);
  caption_.setText(windowTitle());
  caption_.setAlignment(Qt::AlignCenter);
  caption_.setAutoFillBackground(true);
  caption_.setBackgroundRole(QPalette::Highlight);
  caption_.setForegroundRole(QPalette::HighlightedText);
  QFont letters = caption_.font();
  letters.setBold(true);
  caption_.setFont(letters);
  setFixedSize(size + QSize(2 * BorderWidth, 2 * BorderWidth + CaptionHeight));
}

void ModalForm::paintEvent(QPaintEvent* event) {
  QDialog::paintEvent(event);
  QPainter painter(this);
  const QPalette& colours = palette();
  paint::DrawBevel(
      painter, rect(),
      {colours.color(QPalette::Dark), Qt::black, Qt::white, colours.color(QPalette::Dark)});
}

void ModalForm::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  // A minimised dialog would still block the window behind it.
  if (event->type() == QEvent::WindowStateChange && isMinimized()) showNormal();
}

void ModalForm::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (caption_.geometry().contains(event->position().toPoint())) windowHandle()->startSystemMove();
}

}  // namespace terramark::window
