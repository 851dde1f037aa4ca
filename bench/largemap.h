// An editor, and a map of 96 Areas on a large picture in it.
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QWindow>

#include "editor/backdroppress.h"
#include "editor/handlers.h"
#include "shell/backdrop.h"
#include "shell/form1.h"
#include "shell/startup.h"
#include "window/mainwindow.h"
#include "window/qtdesktop.h"

namespace terramark {

struct Editor {
  Editor() {
    ConnectHandlers(Form);
    Form_Load(Form);
  }

  window::QtDesktop Desktop;
  Form1 Form{Desktop};
};

/// Shows a window and waits until it is on the screen.
inline void ShowNow(QWidget& window) {
  window.show();
  while (!window.windowHandle()->isExposed()) QCoreApplication::processEvents();
}

/// The editor in its window, once that is on the screen.
struct ShownEditor : Editor {
  ShownEditor() { ShowNow(Window); }

  window::MainWindow Window{Form};
};

/// Shows a picture and puts the Areas in its upper left corner, where all are seen at once.
inline void MakeMap(Form1& form, const QString& picture) {
  form.PictureFile = picture.toStdString();
  const ShowResult shown = ShowPicture(form, form.PictureFile);
  if (!shown) qFatal("cannot show %s: %s", qPrintable(picture), shown.error().c_str());
  for (int i = 0; i < CountLimit; ++i) {
    const auto x = static_cast<float>(10 + 44 * (i % 12));
    const auto y = static_cast<float>(40 + 33 * (i / 12));
    Picture1_MouseUp(form, {0, forms::LeftButton, forms::CtrlKey, x, y});
  }
  if (form.AreaCount != CountLimit) qFatal("the Areas are not there");
  form.Picture1.ScrollTo(0, 0);
}

/// What the last change asks of the screen, without the platform's wait for the next frame.
inline void Repaint(QWidget& window) {
  QCoreApplication::processEvents();
  QEvent update(QEvent::UpdateRequest);
  QCoreApplication::sendEvent(&window, &update);
}

}  // namespace terramark
