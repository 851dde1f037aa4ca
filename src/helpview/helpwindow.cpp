#include "helpview/helpwindow.h"

#include <QBoxLayout>
#include <QGuiApplication>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QToolButton>
#include <algorithm>
#include <iterator>
#include <memory>
#include <set>

#include "helpview/besidewindow.h"
#include "helpview/pagestyle.h"
#include "widgets/scrollbarnames.h"
#include "widgets/windowsize.h"

namespace terramark::helpview {

namespace {

constexpr QSize DefaultSize(840, 600);
/// A smaller window would cut off the status of a search.
constexpr QSize MinViewerSize(640, 320);
constexpr int ContentsWidth = 180;
constexpr int SearchWidth = 200;
constexpr int Gap = 6;

/// The same text as the page has, so that a match has the same place in both.
QString PlainText(const HelpTopic& topic) {
  QTextDocument page;
  page.setMarkdown(topic.Text);
  StylePage(page);
  return page.toPlainText();
}

QString Counted(std::size_t count, const char* what) {
  return QStringLiteral("%1 %2%3").arg(count).arg(what, count == 1 ? "" : "s");
}

}  // namespace

HelpWindow::HelpWindow(const QWidget* editor) : editor_(editor) {
  setWindowTitle("Terramark Help");
  setObjectName("Help");
  for (const HelpTopic& topic : topics_) contents_.addItem(topic.Title);
  contents_.setAccessibleName("Contents");
  widgets::NameScrollBars(contents_, "Contents");
  search_.setAccessibleName("Search in all topics");
  search_.setPlaceholderText("Search in all topics");
  search_.setClearButtonEnabled(true);
  for (QToolButton* clear : search_.findChildren<QToolButton*>()) {
    clear->setAccessibleName("Clear the search");
  }
  back_.setToolTip("Alt+Left");
  forward_.setToolTip("Alt+Right");
  LayOut();
  ConnectParts();
  SetKeys();
  const QSize room = widgets::MaxWindowSizeFor(*this);
  setMinimumSize(MinViewerSize.boundedTo(room));
  resize(DefaultSize.boundedTo(room));
}

void HelpWindow::LayOut() {
  auto bar = std::make_unique<QHBoxLayout>();
  bar->addWidget(&back_);
  bar->addWidget(&forward_);
  bar->addSpacing(Gap);
  search_.setFixedWidth(SearchWidth);
  bar->addWidget(&search_);
  bar->addSpacing(Gap);
  // The other widgets keep their places whatever the status says.
  QSizePolicy staying(QSizePolicy::Ignored, QSizePolicy::Preferred);
  staying.setRetainSizeWhenHidden(true);
  status_.setSizePolicy(staying);
  status_.hide();
  bar->addWidget(&status_, 1);
  auto halves = std::make_unique<QHBoxLayout>();
  contents_.setFixedWidth(ContentsWidth);
  contents_.setSpacing(2);
  halves->addWidget(&contents_);
  halves->addWidget(&page_, 1);
  // Each belongs to its layout, and the outermost layout to the window.
  auto* const whole = std::make_unique<QVBoxLayout>(this).release();
  whole->setContentsMargins(Gap, Gap, Gap, Gap);
  whole->setSpacing(Gap);
  whole->addLayout(bar.release());
  whole->addLayout(halves.release());
  QWidget* last = &back_;
  for (QWidget* next : std::initializer_list<QWidget*>{&forward_, &search_, &contents_, &page_}) {
    setTabOrder(last, next);
    last = next;
  }
}

void HelpWindow::ConnectParts() {
  connect(&back_, &QPushButton::clicked, &page_, &HelpPage::backward);
  connect(&forward_, &QPushButton::clicked, &page_, &HelpPage::forward);
  connect(&page_, &HelpPage::backwardAvailable, &back_, &QWidget::setEnabled);
  connect(&page_, &HelpPage::forwardAvailable, &forward_, &QWidget::setEnabled);
  back_.setEnabled(false);
  forward_.setEnabled(false);
  connect(&page_, &HelpPage::sourceChanged, this, &HelpWindow::PageChanged);
  connect(&contents_, &QListWidget::currentRowChanged, this, [this](int row) {
    Show(static_cast<std::size_t>(row));
    if (const HelpMatch* const first = FirstMatchIn(row)) page_.SelectMatch(*first);
  });
  connect(&search_, &QLineEdit::textChanged, this, [this] { Search(); });
  connect(&search_, &QLineEdit::returnPressed, this, [this] { FindNext(Direction::Forward); });
}

void HelpWindow::SetKeys() {
  const auto on = [this](const char* keys, auto act) {
    // The window owns it.
    auto shortcut = std::make_unique<QShortcut>(QKeySequence(keys), this);
    connect(shortcut.release(), &QShortcut::activated, this, act);
  };
  on("Escape", [this] { close(); });
  on("Alt+Left", [this] { page_.backward(); });
  on("Alt+Right", [this] { page_.forward(); });
  on("F3", [this] { FindNext(Direction::Forward); });
  on("Shift+F3", [this] { FindNext(Direction::Backward); });
  on("Ctrl+F", [this] {
    search_.setFocus(Qt::ShortcutFocusReason);
    search_.selectAll();
  });
  on("Ctrl++", [this] { page_.Enlarge(); });
  on("Ctrl+=", [this] { page_.Enlarge(); });
  on("Ctrl+-", [this] { page_.Shrink(); });
  on("Ctrl+0", [this] { page_.ActualSize(); });
}

void HelpWindow::PlaceBeside(const QWidget& editor) {
  // Before the first time the window manager has not told how wide its frame is.
  QMargins frame(widgets::FrameMargin, widgets::TitleBarMargin, widgets::FrameMargin,
                 widgets::FrameMargin);
  if (testAttribute(Qt::WA_WState_Created) && frameGeometry() != geometry()) {
    const QRect in = geometry();
    const QRect out = frameGeometry();
    frame = {in.left() - out.left(), in.top() - out.top(), out.right() - in.right(),
             out.bottom() - in.bottom()};
  }
  const QRect room = editor.screen()->availableGeometry();
  const auto framed = [&](QSize inside) {
    return QRect({}, inside).marginsAdded(frame).size().boundedTo(room.size());
  };
  if (size() != placed_) wanted_ = size();
  const QRect place =
      PlaceBesideWindow(room, editor.frameGeometry(), framed(wanted_), framed(minimumSize()));
  placed_ = place.marginsRemoved(frame).size();
  resize(placed_);
  // This takes the corner of the frame.
  move(place.topLeft());
}

void HelpWindow::Open(std::int32_t topic) {
  search_.clear();
  Show(TopicIndex(topics_, topic));
  setWindowState(windowState() & ~Qt::WindowMinimized);
  const bool fillsScreen = isMaximized() || isFullScreen();
  // On Wayland no window can place itself.
  const bool canPlace = !QGuiApplication::platformName().startsWith("wayland");
  if (editor_ && canPlace && !isVisible() && !fillsScreen) PlaceBeside(*editor_);
  page_.setFocus();
  show();
  raise();
  activateWindow();
}

void HelpWindow::Show(std::size_t topic) {
  if (topic < topics_.size()) page_.setSource(topics_[topic].Source);
}

void HelpWindow::PageChanged(const QUrl& source) {
  const auto topic = std::ranges::find(topics_, source, &HelpTopic::Source);
  const QSignalBlocker still(contents_);
  contents_.setCurrentRow(static_cast<int>(topic - topics_.begin()));
  ShowMatches();
}

void HelpWindow::Search() {
  if (texts_.isEmpty()) std::ranges::transform(topics_, std::back_inserter(texts_), PlainText);
  matches_ = FindWords(texts_, search_.text());
  for (int row = 0; row < contents_.count(); ++row) {
    contents_.item(row)->setHidden(HasQuery() && FirstMatchIn(row) == nullptr);
  }
  ShowMatches();
}

const HelpMatch* HelpWindow::FirstMatchIn(int row) const {
  const auto first = std::ranges::find(matches_, static_cast<std::size_t>(row), &HelpMatch::Topic);
  return first == matches_.end() ? nullptr : &*first;
}

void HelpWindow::FindNext(Direction direction) {
  if (matches_.empty()) return;
  const bool forward = direction == Direction::Forward;
  const QTextCursor now = page_.textCursor();
  std::size_t next = NextMatch(matches_, static_cast<std::size_t>(contents_.currentRow()),
                               forward ? now.selectionEnd() : now.selectionStart());
  if (!forward) next = (next + matches_.size() - 1) % matches_.size();
  const HelpMatch& place = matches_[next];
  Show(place.Topic);
  page_.SelectMatch(place);
  ShowStatus(QStringLiteral("Place %1 of %2: %3")
                 .arg(next + 1)
                 .arg(matches_.size())
                 .arg(topics_[place.Topic].Title));
}

void HelpWindow::ShowMatches() {
  std::vector<HelpMatch> here;
  std::set<std::size_t> topics;
  for (const HelpMatch& place : matches_) {
    topics.insert(place.Topic);
    if (static_cast<int>(place.Topic) == contents_.currentRow()) here.push_back(place);
  }
  page_.HighlightMatches(here);
  if (!HasQuery()) return ShowStatus("");
  if (matches_.empty()) return ShowStatus("Not found");
  ShowStatus(Counted(matches_.size(), "place") + " in " + Counted(topics.size(), "topic"));
}

/// Also sets the description of the search box: a screen reader reads that of the focused widget.
void HelpWindow::ShowStatus(const QString& news) {
  status_.setText(news);
  status_.setVisible(!news.isEmpty());
  search_.setAccessibleDescription(news);
}

}  // namespace terramark::helpview
