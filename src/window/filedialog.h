// The file dialog.
#pragma once

#include <QString>

#include "forms/desktop.h"

class QWidget;

namespace terramark::window {

/// Shows the desktop's own file dialog, or Qt's where there is none, with the files of the filter
/// in a folder. Returns the full path of the chosen file, or an empty text when the dialog is
/// cancelled. A dialog of the desktop may leave another current folder than it found.
QString AskForFile(const forms::CommonDialog& asked, const QString& folder, QWidget* parent);

}  // namespace terramark::window
