#include "window/buttonview.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>

#include "forms/form.h"
#include "paint/elidedtext.h"
#include "paint/frames.h"
#include "paint/lettering.h"
#include "paint/screencolour.h"
#include "window/appstyle.h"
#include "window/keyfeed.h"

namespace terramark::window {

namespace {

constexpr int EdgeWidth = 2;

/// The focus ring and a free pixel inside it.
constexpr int FocusRingInset = 2;

/// How far the face of a disabled button fades into the form's, and its text into the face. The
/// text keeps a contrast of 3 : 1 on every colour.
constexpr double FaceFading = 2 / 3.0;
constexpr double TextFading = 0.4;

QColor Faded(const QColor& colour, const QColor& into, double share) {
  const auto mixed = [share](int from, int to) { return qRound(from + share * (to - from)); };
  return {mixed(colour.red(), into.red()), mixed(colour.green(), into.green()),
          mixed(colour.blue(), into.blue())};
}

bool Pushes(const QKeyEvent& key) {
  return key.key() == Qt::Key_Space || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

}  // namespace

ButtonView::ButtonView(forms::CommandButton& button, QWidget& container)
    : QPushButton(&container), ControlView(button, *this), button_(button) {
  setFocusPolicy(Qt::StrongFocus);
  ShowOwn(forms::PropertyId::Caption);
  // Qt clicks the button when Enter was pressed in a dialog and no other widget took it, or for an
  // assistive tool.
  connect(this, &QPushButton::clicked, this, [this] {
    button_.ParentForm()->Pointer.SimulateClick(button_,
                                                KeyMask(QGuiApplication::keyboardModifiers()));
  });
}

void ButtonView::ShowOwn(forms::PropertyId id) {
  if (id == forms::PropertyId::Caption) {
    // A single "&" would make a shortcut.
    const QString caption = paint::ElidedText(button_.Caption, Qt::ElideMiddle);
    setText(QString(caption).replace('&', "&&"));
    // The caption of this button is a file's name, which does not say what the button does.
    const bool named = button_.Caption.Get() == button_.AccessibleName;
    setAccessibleDescription(named ? toolTip() : caption);
  }
  update();
}

void ButtonView::keyPressEvent(QKeyEvent* event) {
  if (!Pushes(*event)) {
    // Escape releases the button without pressing it. Arrows, with which Qt would go to the next
    // button, belong to the form.
    if (event->key() == Qt::Key_Escape) setDown(false);
    return event->ignore();
  }
  if (!event->isAutoRepeat()) setDown(true);
}

void ButtonView::keyReleaseEvent(QKeyEvent* event) {
  if (!Pushes(*event)) return event->ignore();
  if (event->isAutoRepeat() || !isDown()) return;
  setDown(false);
  button_.ParentForm()->Pointer.SimulateClick(button_, KeyMask(event->modifiers()));
}

void ButtonView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor own = paint::ScreenColour(button_.BackColor);
  const QColor face = isEnabled() ? own : Faded(own, palette().color(QPalette::Button), FaceFading);
  painter.fillRect(rect(), face);
  DrawEdge(painter);
  QRect inside = rect().adjusted(EdgeWidth, EdgeWidth, -EdgeWidth, -EdgeWidth);
  if (isDown()) inside.translate(1, 1);
  const QColor ink = TextColourOn(face);
  painter.setPen(isEnabled() ? ink : Faded(ink, face, TextFading));
  // Of a file's path both ends are worth seeing, so they stay clear of the ring.
  const QRect words = inside.adjusted(FocusRingInset, 0, -FocusRingInset, 0);
  paint::DrawCaption(painter, words, paint::ElidedText(button_.Caption, Qt::ElideMiddle),
                     Qt::ElideMiddle);
  if (hasFocus()) paint::DrawFocusRing(painter, inside);
}

void ButtonView::DrawEdge(QPainter& painter) const {
  const auto colour = [this](QPalette::ColorRole role) { return palette().color(role); };
  const QColor light = colour(QPalette::Light);
  const QColor button = colour(QPalette::Button);
  const QColor dark = colour(QPalette::Dark);
  const QColor shadow = colour(QPalette::Shadow);
  if (!isEnabled()) return paint::DrawFrame(painter, rect(), dark);
  const paint::Bevel up{light, shadow, button, dark};
  const paint::Bevel down{shadow, light, dark, button};
  paint::DrawBevel(painter, rect(), isDown() ? down : up);
}

}  // namespace terramark::window
