#include "window/filedialog.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMimeDatabase>
#include <QScreen>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTreeView>
#include <algorithm>
#if QT_CONFIG(settings)
#include <QSettings>
#endif

#include "paint/cp1252.h"
#include "shell/filenames.h"
#include "widgets/scrollbarnames.h"
#include "widgets/windowsize.h"

namespace terramark::window {

namespace {

constexpr QSize DefaultSize(760, 480);

/// The name that the dialog shows for the files of a pattern.
struct FileKind {
  const char* Filter;
  const char* Name;
};

constexpr FileKind Kinds[] = {{LayoutFiles, "Map Layouts"}, {PictureFiles, "Pictures"}};

QString NameFilterOf(const std::string& filter) {
  // The filter separates patterns by semicolons, Qt by blanks.
  QString patterns = paint::FromCp1252(filter).replace(';', ' ');
  for (const FileKind& kind : Kinds) {
    if (filter == kind.Filter) return QStringLiteral("%1 (%2)").arg(kind.Name, patterns);
  }
  return patterns;
}

/// Determines a file's kind by its name alone. Qt's own provider looks into each file that is
/// listed, and a file that blocks its reader would block the editor for ever.
class KindByName : public QFileIconProvider {
 public:
  using QFileIconProvider::icon;
  QIcon icon(const QFileInfo& file) const override { return icon(file.isDir() ? Folder : File); }
  QString type(const QFileInfo& file) const override {
    if (file.isDir()) return QFileDialog::tr("Folder");
    return QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension).comment();
  }
};

/// Otherwise the dialog would restore columns and folders from the last run, also of other
/// programs. Only layouts outlive a run of the editor. On Windows, where this would not help, Qt is
/// built without settings.
void ForgetSettings() {
#if QT_CONFIG(settings)
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
#endif
}

/// Makes the dialog as wide as its columns, as far as the screen allows.
void WidenFor(const QTreeView& list, QFileDialog& chooser) {
  const int lack = list.header()->length() - list.viewport()->width();
  if (!chooser.isVisible() || lack <= 0) return;
  const QRect screen = chooser.screen()->availableGeometry();
  chooser.resize(std::min(chooser.width() + lack, widgets::MaxWindowSizeFor(chooser).width()),
                 chooser.height());
  const int beyond = chooser.frameGeometry().right() - screen.right();
  if (beyond > 0) chooser.move(std::max(screen.left(), chooser.x() - beyond), chooser.y());
}

/// The dialog's own columns are too narrow for a date.
void ShowWholeColumns(QFileDialog& chooser) {
  auto* const list = chooser.findChild<QTreeView*>();
  if (list == nullptr) return;
  list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  // The columns grow while the folder is read; their width is known when all of it has been read.
  QObject::connect(
      list->header(), &QHeaderView::sectionResized, &chooser,
      [list, &chooser] { WidenFor(*list, chooser); }, Qt::QueuedConnection);
}

/// Gives accessible names to the widgets that have none.
void SetAccessibleNames(const QFileDialog& chooser) {
  for (auto* box : chooser.findChildren<QComboBox*>()) {
    const bool ofTypes = box->findText(chooser.nameFilters().value(0)) >= 0;
    const QString words = chooser.labelText(ofTypes ? QFileDialog::FileType : QFileDialog::LookIn);
    box->setAccessibleName(QString(words).remove(':'));
    box->view()->setAccessibleName(box->accessibleName());
  }
  for (const auto* area : chooser.findChildren<QAbstractScrollArea*>()) {
    widgets::NameScrollBars(*area, area->accessibleName());
  }
}

/// When a place of the side bar opens, the dialog would clear the bar's current item, and the next
/// arrow key would begin at the first place again.
void KeepCurrentItem(const QListView& bar) {
  QItemSelectionModel* const places = bar.selectionModel();
  QObject::connect(
      places, &QItemSelectionModel::selectionChanged, &bar, [places](const QItemSelection& opened) {
        if (opened.isEmpty()) return;
        // Blocked, since the place is open already and a signal would open it again.
        const QSignalBlocker still(places);
        places->setCurrentIndex(opened.indexes().front(), QItemSelectionModel::NoUpdate);
      });
}

void KeepCurrentItemInSideBar(const QFileDialog& chooser) {
  for (const auto* list : chooser.findChildren<QListView*>()) {
    if (qobject_cast<QSplitter*>(list->parentWidget()) != nullptr) KeepCurrentItem(*list);
  }
}

/// The completion lists under a line edit. Qt passes Enter on from the list to the line, so that
/// one key would take a name and also close the dialog.
class CompleterPopups final : public QObject {
 public:
  explicit CompleterPopups(const QFileDialog& chooser) {
    for (auto* line : chooser.findChildren<QLineEdit*>()) {
      if (line->completer() == nullptr) continue;
      line->completer()->popup()->installEventFilter(this);
      connect(&chooser, &QDialog::finished, line, [line] { End(*line); });
    }
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    auto& list = *static_cast<QAbstractItemView*>(watched);
    // The line already has the text of the list's current item.
    const bool takes = list.isVisible() && list.currentIndex().isValid();
    list.hide();
    return takes;
  }

 private:
  /// A folder that has just been read would open the list again while the dialog closes, and the
  /// keys for the list would be passed to a line that is gone.
  static void End(QLineEdit& line) {
    QCompleter* const completer = line.completer();
    if (completer == nullptr) return;
    completer->popup()->hide();
    completer->popup()->removeEventFilter(completer);
    line.setCompleter(nullptr);
  }
};

/// Adds the samples, where dist/CMakeLists.txt installs them, to the usual places. On Windows they
/// lie beside the program, and its dialog takes no places.
void AddSamples(QFileDialog& chooser) {
  const QDir samples(QCoreApplication::applicationDirPath() + "/../share/terramark/samples");
  if (!samples.exists()) return;
  chooser.setSidebarUrls(chooser.sidebarUrls() << QUrl::fromLocalFile(samples.canonicalPath()));
}

}  // namespace

QString AskForFile(const forms::CommonDialog& asked, const QString& folder, QWidget* parent) {
  ForgetSettings();
  KindByName kinds;
  QFileDialog chooser(parent, paint::FromCp1252(asked.Purpose.Title), folder);
  chooser.setIconProvider(&kinds);
  chooser.setAcceptMode(asked.Purpose.Saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  chooser.setFileMode(QFileDialog::AnyFile);
  chooser.setOption(QFileDialog::DontConfirmOverwrite);
  chooser.setNameFilters({NameFilterOf(asked.Filter), "All files (*)"});
  chooser.setViewMode(QFileDialog::Detail);
  AddSamples(chooser);
  ShowWholeColumns(chooser);
  SetAccessibleNames(chooser);
  KeepCurrentItemInSideBar(chooser);
  CompleterPopups lists(chooser);
  chooser.resize(DefaultSize.boundedTo(widgets::MaxWindowSizeFor(chooser)));
  if (chooser.exec() != QDialog::Accepted) return {};
  return chooser.selectedFiles().value(0);
}

}  // namespace terramark::window
