// The file dialog, and the way of a chosen name into 8-bit text.
#pragma once

#include <QString>
#include <string>

#include "forms/desktop.h"

class QWidget;

namespace terramark::window {

/// Shows the dialog with the files of a pattern list in a folder, and gives the full path of the
/// one chosen, the empty text for a cancel. Takes a file that exists and a name that does not; asks
/// nothing about either. The process's current folder stays.
QString AskForFile(const std::string& filter, const QString& folder, QWidget* parent);

/// Puts a chosen path into the dialog's properties.
void TakeChosenPath(forms::CommonDialog& dialog, const QString& path);

}  // namespace terramark::window
