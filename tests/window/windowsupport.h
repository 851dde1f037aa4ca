// The editor's window on a scripted desktop, with mouse and keys as the platform gives them.
#pragma once

#include <QTest>
#include <QWindow>

#include "forms/geometry.h"
#include "shell/form1.h"
#include "support/scripteddesktop.h"
#include "window/appstyle.h"
#include "window/keyrepeats.h"
#include "window/mainwindow.h"

namespace terramark::window {

struct TestWindow {
  ScriptedDesktop Desktop;
  Form1 Form{Desktop};
  KeyRepeats Repeats;
  MainWindow Window{Form};

  TestWindow() {
    Form.KeyPreview = true;
    Window.show();
    Window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window));
  }

  template <typename T = QWidget>
  T& Of(const forms::Control& control) {
    return *dynamic_cast<T*>(Window.View().WidgetOf(control));
  }
  static QPoint Centre(const forms::Control& control) {
    const forms::PixelPoint middle = forms::CentreOnForm(control);
    return {middle.X, middle.Y};
  }
  /// The centre of a control that a press there reaches, as it does on none that is disabled.
  QPoint Reach(const forms::Control& control) const {
    const QPoint at = Centre(control);
    const forms::Control& hit = Form.Pointer.ControlAt(at.x(), at.y());
    EXPECT_EQ(&hit, &control) << control.Name() << " is covered by " << hit.Name();
    return at;
  }

  void Press(QPoint at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {}) {
    QTest::mousePress(Window.windowHandle(), button, keys, at);
  }
  void Move(QPoint at) { QTest::mouseMove(Window.windowHandle(), at); }
  void Release(QPoint at, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers keys = {}) {
    QTest::mouseRelease(Window.windowHandle(), button, keys, at);
  }
  void ClickAt(QPoint at, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers keys = {}) {
    Press(at, button, keys);
    Release(at, button, keys);
  }
  void Click(const forms::Control& control, Qt::MouseButton button = Qt::LeftButton,
             Qt::KeyboardModifiers keys = {}) {
    ClickAt(Reach(control), button, keys);
  }
  void Stroke(int key, Qt::KeyboardModifiers keys, char text) {
    const QString made = text != 0 ? QString(QLatin1Char(text)) : QString();
    for (const auto half : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(half, key, keys, made);
      QCoreApplication::sendEvent(Window.windowHandle(), &event);
    }
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers keys = {}) {
    Stroke(key, keys, QTest::keyToAscii(key));
  }
  void Type(const char* text) {
    for (; *text != 0; ++text) Stroke(QTest::asciiToKey(*text), {}, *text);
  }

  QColor PixelOn(const forms::Control& control, QPoint at) {
    return Of(control).grab().toImage().pixelColor(at);
  }
};

}  // namespace terramark::window
