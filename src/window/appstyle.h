// How the window looks whatever the desktop's theme: its style and its palette.
#pragma once

#include <QColor>

class QApplication;
class QIcon;

namespace terramark::window {

/// Gives the application its own light look; once, before the first widget is made.
void InstallStyle(QApplication& application);

/// The program's icon for windows.
QIcon WindowIcon();

/// Black or white, whichever stands out more on a face of the colour.
QColor TextColourOn(const QColor& face);

}  // namespace terramark::window
