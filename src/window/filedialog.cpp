#include "window/filedialog.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMimeDatabase>
#include <QScreen>
#include <QSettings>
#include <QSignalBlocker>
#include <QTreeView>
#include <algorithm>
#include <utility>

#include "pictures/cp1252.h"
#include "shell/filenames.h"
#include "window/accessiblenames.h"

namespace terramark::window {

namespace {

constexpr QSize UsualSize(760, 480);

/// What the files of a pattern list are called.
struct FileKind {
  const char* Filter;
  const char* Name;
};

constexpr FileKind Kinds[] = {{LayoutFiles, "Map Layouts"}, {PictureFiles, "Pictures"}};

QString Worded(const std::string& filter) {
  // Patterns stand between semicolons here and between blanks there.
  QString patterns = pictures::FromCp1252(filter).replace(';', ' ');
  for (const FileKind& kind : Kinds) {
    if (filter == kind.Filter) return QStringLiteral("%1 (%2)").arg(kind.Name, patterns);
  }
  return patterns;
}

/// Tells a file's kind by its name alone. The dialog would look into each file that it lists, and
/// one that keeps its reader waiting would hold the editor for ever.
class KindByName : public QFileIconProvider {
 public:
  using QFileIconProvider::icon;
  QIcon icon(const QFileInfo& file) const override { return icon(file.isDir() ? Folder : File); }
  QString type(const QFileInfo& file) const override {
    if (file.isDir()) return QFileDialog::tr("Folder");
    return QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension).comment();
  }
};

/// The dialog would find its columns and folders again in the next run, and so would that of any
/// other program; nothing but the layouts outlives a run here.
void ForgetSettings() {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
}

/// Makes the dialog as wide as its columns, as far as the screen goes.
void WidenFor(const QTreeView& list, QFileDialog& chooser) {
  const int lack = list.header()->length() - list.viewport()->width();
  if (!chooser.isVisible() || lack <= 0) return;
  const QRect screen = chooser.screen()->availableGeometry();
  chooser.resize(std::min(chooser.width() + lack, screen.width()), chooser.height());
  const int beyond = chooser.frameGeometry().right() - screen.right();
  if (beyond > 0) chooser.move(std::max(screen.left(), chooser.x() - beyond), chooser.y());
}

/// The dialog's own columns are too narrow for a date.
void ShowWholeColumns(QFileDialog& chooser) {
  chooser.setViewMode(QFileDialog::Detail);
  chooser.resize(UsualSize);
  auto* const list = chooser.findChild<QTreeView*>();
  if (list == nullptr) return;
  list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  // The columns grow when the folder has been read; how far is known when all of them have.
  QObject::connect(
      list->header(), &QHeaderView::sectionResized, &chooser,
      [list, &chooser] { WidenFor(*list, chooser); }, Qt::QueuedConnection);
}

/// Joins words to the boxes beside them, and names what has no words, for assistive tools.
void NameParts(const QFileDialog& chooser) {
  const std::pair<const char*, const char*> joined[] = {{"lookInLabel", "lookInCombo"},
                                                        {"fileTypeLabel", "fileTypeCombo"}};
  for (const auto& [words, box] : joined) {
    auto* const label = chooser.findChild<QLabel*>(words);
    auto* const named = chooser.findChild<QComboBox*>(box);
    if (label == nullptr || named == nullptr) continue;
    label->setBuddy(named);
    named->view()->setAccessibleName(label->text().remove(':'));
  }
  for (const auto* area : chooser.findChildren<QAbstractScrollArea*>()) {
    NameScrollBars(*area, area->accessibleName());
  }
}

/// Each place that opens would take the list's place away, so that the next arrow began anew.
void KeepPlaceInSideBar(QFileDialog& chooser) {
  auto* const bar = chooser.findChild<QListView*>("sidebar");
  if (bar == nullptr) return;
  QItemSelectionModel* const places = bar->selectionModel();
  QObject::connect(places, &QItemSelectionModel::selectionChanged, &chooser,
                   [places](const QItemSelection& opened) {
                     if (opened.isEmpty()) return;
                     // It has been opened.
                     const QSignalBlocker still(places);
                     places->setCurrentIndex(opened.indexes().front(),
                                             QItemSelectionModel::NoUpdate);
                   });
}

/// Else its list can come up once more while the dialog closes, and would keep the keyboard from
/// the window behind.
void EndCompletionWith(QFileDialog& chooser) {
  auto* const name = chooser.findChild<QLineEdit*>("fileNameEdit");
  if (name == nullptr) return;
  QObject::connect(&chooser, &QDialog::finished, name, [name] { name->setCompleter(nullptr); });
}

/// The samples, where dist/CMakeLists.txt installs them, stand beside the usual places.
void AddSamples(QFileDialog& chooser) {
  const QDir samples(QCoreApplication::applicationDirPath() + "/../share/terramark/samples");
  if (!samples.exists()) return;
  chooser.setSidebarUrls(chooser.sidebarUrls() << QUrl::fromLocalFile(samples.canonicalPath()));
}

}  // namespace

QString AskForFile(const std::string& filter, const QString& folder, QWidget* parent) {
  ForgetSettings();
  KindByName kinds;
  QFileDialog chooser(parent, QFileDialog::tr("Choose a File"), folder);
  chooser.setOption(QFileDialog::DontUseNativeDialog);
  chooser.setIconProvider(&kinds);
  chooser.setAcceptMode(QFileDialog::AcceptOpen);
  chooser.setFileMode(QFileDialog::AnyFile);
  chooser.setNameFilters({Worded(filter), "All files (*)"});
  AddSamples(chooser);
  ShowWholeColumns(chooser);
  NameParts(chooser);
  KeepPlaceInSideBar(chooser);
  EndCompletionWith(chooser);
  if (chooser.exec() != QDialog::Accepted) return {};
  return chooser.selectedFiles().value(0);
}

}  // namespace terramark::window
