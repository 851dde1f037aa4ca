// The style and the palette of the windows, the same on every desktop.
#pragma once

#include <QColor>

class QApplication;
class QIcon;

namespace terramark::window {

/// Gives the application its own light style; once, before the first widget is made.
void InstallStyle(QApplication& application);

/// The program's icon for windows.
QIcon WindowIcon();

/// Black or white, whichever has more contrast on the colour.
QColor TextColourOn(const QColor& face);

}  // namespace terramark::window
