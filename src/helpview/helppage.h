// The page of the help viewer: one topic, with links, highlighted matches and letters of any size.
#pragma once

#include <QTextBrowser>
#include <vector>

#include "helpview/helpsearch.h"

namespace terramark::helpview {

class HelpPage final : public QTextBrowser {
 public:
  HelpPage();

  /// Highlights these places of the topic's text, and no others.
  void HighlightMatches(const std::vector<HelpMatch>& places);
  /// Selects a match and scrolls it into view.
  void SelectMatch(const HelpMatch& place);

  void Enlarge() { Zoom(zoom_ + 1); }
  void Shrink() { Zoom(zoom_ - 1); }
  void ActualSize() { Zoom(0); }

 protected:
  /// A link without a target does nothing.
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void ApplyStyle();
  void Fit();
  void Zoom(int zoom);

  int zoom_ = 0;
  int turned_ = 0;  // of the wheel, short of a step
};

}  // namespace terramark::helpview
