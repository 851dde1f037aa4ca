#include "window/qtdesktop.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>
#include <bit>
#include <cstdio>
#include <cstdlib>

#include "document/codepage.h"
#include "files/currentfolder.h"
#include "files/pathof.h"
#include "helpview/showhelp.h"
#include "paint/cp1252.h"
#include "paint/elidedtext.h"
#include "paint/lettering.h"
#include "window/filedialog.h"
#include "window/modalform.h"

namespace terramark::window {

namespace {

constexpr double TwipsPerInch = 1440;
constexpr float MillisecondsPerSecond = 1000;
/// A word of so many characters fits into a line of every box.
constexpr int MaxWordLength = 40;
/// The bits of a fraction that a float holds exactly.
constexpr unsigned FractionBits = 24;

bool Fits(const QString& name) {
  // A line end in a name would end the layout's line that contains it.
  return paint::FitsCp1252(name) && !name.contains('\n') && !name.contains('\r');
}

/// Puts a chosen path into the dialog's properties.
void TakeChosenPath(forms::CommonDialog& dialog, const QString& path) {
  const QString title = QFileInfo(path).fileName();
  dialog.FileName = paint::ToCp1252(path);
  dialog.FileTitle = paint::ToCp1252(title);
  dialog.FileNameFits = Fits(path);
  dialog.FileTitleFits = Fits(title);
}

/// The visible part of a text as one paragraph that can be wrapped: long words may break, and
/// control characters become blanks.
QString WrappableText(const std::string& text) {
  QString shown = paint::ElidedText(text, Qt::ElideMiddle);
  for (QChar& character : shown) {
    if (character < ' ') character = ' ';
  }
  // A zero-width space marks where a word may break.
  return shown.replace(QRegularExpression(QStringLiteral("(\\S{%1})").arg(MaxWordLength)),
                       QStringLiteral("\\1\u200B"));
}

}  // namespace

forms::Answer QtDesktop::MsgBox(const std::string& text, forms::Buttons buttons,
                                const std::string& title) {
  const bool question = buttons == forms::Buttons::YesNo;
  QMessageBox box(window_);
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(paint::FromCp1252(title));
  box.setText(WrappableText(text));
  box.setStandardButtons(question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
  box.setDefaultButton(question ? QMessageBox::No : QMessageBox::Ok);
  box.setEscapeButton(question ? QMessageBox::No : QMessageBox::Ok);
  const int pressed = box.exec();
  if (!question) return forms::Answer::Ok;
  return pressed == QMessageBox::Yes ? forms::Answer::Yes : forms::Answer::No;
}

void QtDesktop::ShowOpen(forms::CommonDialog& dialog) {
  const QString current = QDir::currentPath();
  const QString folder = chosen_.isEmpty() ? current : QFileInfo(chosen_).path();
  const QString path = AskForFile(dialog, folder, window_);
  // The dialog of Windows enters the folder of the chosen file. There a picture whose name has no
  // folder would no longer be found when the map is saved.
  if (QDir::currentPath() != current) QDir::setCurrent(current);
  if (path.isEmpty()) return;
  chosen_ = QDir::toNativeSeparators(path);
  TakeChosenPath(dialog, chosen_);
}

void QtDesktop::ShowModal(forms::Form& form) {
  ModalForm(form, window_).exec();
}

void QtDesktop::ShowHelp(std::int32_t topic) {
  helpview::ShowHelp(help_, topic, window_);
}

forms::DateTime QtDesktop::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate day = now.date();
  const QTime time = now.time();
  return {day.year(), day.month(), day.day(), time.hour(), time.minute(), time.second()};
}

float QtDesktop::Timer() {
  return static_cast<float>(QTime::currentTime().msecsSinceStartOfDay()) / MillisecondsPerSecond;
}

void QtDesktop::Randomize(float seed) {
  random_.seed(std::bit_cast<std::uint32_t>(seed));
}

float QtDesktop::Rnd() {
  const auto draw = static_cast<std::uint32_t>(random_()) >> (32U - FractionBits);
  return static_cast<float>(draw) / static_cast<float>(1U << FractionBits);
}

float QtDesktop::TwipsPerPixelX() {
  return static_cast<float>(TwipsPerInch / QGuiApplication::primaryScreen()->logicalDotsPerInchX());
}

float QtDesktop::TwipsPerPixelY() {
  return static_cast<float>(TwipsPerInch / QGuiApplication::primaryScreen()->logicalDotsPerInchY());
}

forms::TextExtent QtDesktop::MeasureText(const std::string& text) {
  return paint::ExtentOf(text, *this);
}

forms::LoadedPicture QtDesktop::LoadPicture(const std::string& path, int width, int height) {
  if (path.empty()) return std::make_shared<forms::Raster>();
  return picture_.Load(files::PathOf(NativePath(path)), width, height);
}

std::string QtDesktop::NativePath(const std::string& path) {
  if (path == paint::ToCp1252(chosen_)) return chosen_.toStdString();
  return ToUtf8(path);
}

void QtDesktop::EnterFolderOf(const std::string& path) {
  files::EnterFolderOf(files::PathOf(NativePath(path)));
}

void QtDesktop::End(int status) {
  std::fflush(nullptr);
  std::_Exit(status);
}

}  // namespace terramark::window
