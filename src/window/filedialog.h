// The file dialog.
#pragma once

#include <QString>

#include "forms/desktop.h"

class QWidget;

namespace terramark::window {

/// Shows the desktop's own dialog, or Qt's where it has none, with the files of the filter in a
/// folder, and gives the full path of the one chosen, the empty text for a cancel. The process's
/// current folder stays.
QString AskForFile(const forms::CommonDialog& asked, const QString& folder, QWidget* parent);

}  // namespace terramark::window
