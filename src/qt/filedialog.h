// The file dialog, and the way of a chosen name into 8-bit text.
#pragma once

#include <QString>

#include "forms/desktop.h"

class QWidget;

namespace terramark::qt {

/// Shows the dialog in the current folder, which stays the current one. Takes a file that exists
/// and a name that does not; asks nothing about either. A cancel changes nothing.
void ShowFileDialog(forms::CommonDialog& dialog, QWidget* parent);

/// Puts a chosen path into the dialog's properties.
void TakeChosenPath(forms::CommonDialog& dialog, const QString& path);

}  // namespace terramark::qt
