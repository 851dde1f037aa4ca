#include "qt/filedialog.h"

#include <QDir>
#include <QFileDialog>

#include "qt/cp1252.h"

namespace terramark::qt {

void TakeChosenPath(forms::CommonDialog& dialog, const QString& path) {
  dialog.FileName = ToCp1252(path);
  // A line end in a name would end the line of the layout that holds it.
  dialog.FileNameFits = FitsCp1252(path) && !path.contains('\n') && !path.contains('\r');
}

void ShowFileDialog(forms::CommonDialog& dialog, QWidget* parent) {
  QFileDialog chooser(parent, QFileDialog::tr("Choose a File"), QDir::currentPath());
  chooser.setOption(QFileDialog::DontUseNativeDialog);
  chooser.setAcceptMode(QFileDialog::AcceptOpen);
  chooser.setFileMode(QFileDialog::AnyFile);
  // Patterns stand between semicolons here and between blanks there.
  const QString patterns = FromCp1252(dialog.Filter).replace(';', ' ');
  chooser.setNameFilters({patterns, "*"});
  if (chooser.exec() != QDialog::Accepted || chooser.selectedFiles().isEmpty()) return;
  TakeChosenPath(dialog, chooser.selectedFiles().first());
}

}  // namespace terramark::qt
