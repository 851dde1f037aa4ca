// The editor's window on a scripted desktop, with mouse and keys as the platform gives them.
#pragma once

#include <QTest>
#include <QWindow>

#include "forms/geometry.h"
#include "qt/look.h"
#include "qt/mainwindow.h"
#include "support/scripteddesktop.h"

namespace terramark::qt {

struct TestWindow {
  ScriptedDesktop Desktop;
  Form1 Form{Desktop};
  MainWindow Window{Form};

  TestWindow() {
    Form.KeyPreview = true;
    Window.show();
    Window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window));
  }

  template <typename T = QWidget>
  T& Of(const forms::Control& control) {
    return *dynamic_cast<T*>(Window.Inside().WidgetOf(control));
  }
  QPoint Centre(const forms::Control& control) const {
    const forms::PixelPoint corner = forms::InnerOrigin(control);
    const forms::PixelRect size = forms::PixelBounds(control);
    return {corner.X + size.Width / 2, corner.Y + size.Height / 2};
  }

  void Press(QPoint at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {}) {
    QTest::mousePress(Window.windowHandle(), button, keys, at);
  }
  void Move(QPoint at) { QTest::mouseMove(Window.windowHandle(), at); }
  void Release(QPoint at, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers keys = {}) {
    QTest::mouseRelease(Window.windowHandle(), button, keys, at);
  }
  void Click(const forms::Control& control, Qt::MouseButton button = Qt::LeftButton,
             Qt::KeyboardModifiers keys = {}) {
    Press(Centre(control), button, keys);
    Release(Centre(control), button, keys);
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers keys = {}) {
    QTest::keyClick(Window.windowHandle(), key, keys);
  }
  void Type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), text); }

  QColor PixelOn(const forms::Control& control, QPoint at) {
    return Of(control).grab().toImage().pixelColor(at);
  }
};

}  // namespace terramark::qt
