// The file dialog.
#pragma once

#include <QString>
#include <string>

class QWidget;

namespace terramark::window {

/// Shows the dialog with the files of a pattern list in a folder, and gives the full path of the
/// one chosen, the empty text for a cancel. Takes a file that exists and a name that does not; asks
/// nothing about either. The process's current folder stays.
QString AskForFile(const std::string& filter, const QString& folder, QWidget* parent);

}  // namespace terramark::window
