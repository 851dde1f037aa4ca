#include "helpview/pagestyle.h"

#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFragment>
#include <QTextList>
#include <QTextTable>
#include <algorithm>
#include <cmath>
#include <vector>

namespace terramark::helpview {

namespace {

constexpr double LinePercent = 125;
constexpr double Gap = 8;  // between paragraphs; half of it between the items of a list
constexpr double GapAboveHeading = 18;
constexpr double CellPadding = 5;

const QColor TableBorderColour(0xA0, 0xA0, 0xA0);
const QColor HeadingBackground(0xE8, 0xE8, 0xE8);
const QColor CodeBackground(0xEC, 0xEC, 0xEC);
const QColor CaptionColour(0x50, 0x50, 0x50);

struct Image {
  int At;
  QTextImageFormat Format;
};

std::vector<Image> ImagesOf(const QTextDocument& page) {
  std::vector<Image> images;
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const QTextFragment fragment = part.fragment();
      if (!fragment.charFormat().isImageFormat()) continue;
      images.push_back({fragment.position(), fragment.charFormat().toImageFormat()});
    }
  }
  return images;
}

/// The letters of a heading keep their proportion to the page's font, which a reader may enlarge.
void StyleHeading(QTextCursor& block, int level) {
  QTextCharFormat letters;
  letters.setProperty(QTextFormat::FontSizeAdjustment, std::max(3 - level, 0));
  block.select(QTextCursor::BlockUnderCursor);
  block.mergeCharFormat(letters);
}

void StyleBlocks(QTextDocument& page) {
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
    QTextCursor cursor(block);
    const int level = block.blockFormat().headingLevel();
    QTextBlockFormat set;
    set.setTopMargin(level > 1 ? GapAboveHeading : 0);
    if (cursor.currentTable() != nullptr) {
      set.setBottomMargin(0);
    } else {
      const QTextList* list = block.textList();
      const bool another = list != nullptr && list == block.next().textList();
      set.setBottomMargin(another ? Gap / 2 : Gap);
      set.setLineHeight(LinePercent, QTextBlockFormat::ProportionalHeight);
    }
    cursor.mergeBlockFormat(set);
    if (level > 0) StyleHeading(cursor, level);
  }
}

/// Text to type and file names get a background of their own, since a system may have no font with
/// letters of equal width.
void StyleCode(QTextDocument& page) {
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
    std::vector<QTextFragment> parts;
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      if (part.fragment().charFormat().fontFixedPitch()) parts.push_back(part.fragment());
    }
    for (const QTextFragment& part : parts) {
      QTextCharFormat letters = part.charFormat();
      for (const auto own : {QTextFormat::FontFixedPitch, QTextFormat::FontFamilies,
                             QTextFormat::FontPointSize, QTextFormat::FontPixelSize}) {
        letters.clearProperty(own);
      }
      letters.setBackground(CodeBackground);
      QTextCursor cursor(&page);
      cursor.setPosition(part.position());
      cursor.setPosition(part.position() + part.length(), QTextCursor::KeepAnchor);
      cursor.setCharFormat(letters);
    }
  }
}

void StyleTable(QTextTable& table) {
  QTextTableFormat set = table.format();
  set.setBorder(1);
  set.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  set.setBorderBrush(TableBorderColour);
  set.setBorderCollapse(true);
  set.setCellSpacing(0);
  set.setCellPadding(CellPadding);
  set.setTopMargin(0);
  set.setBottomMargin(2 * Gap);
  table.setFormat(set);
  for (int column = 0; column < table.columns(); ++column) {
    QTextTableCell head = table.cellAt(0, column);
    QTextCharFormat ground = head.format();
    ground.setBackground(HeadingBackground);
    head.setFormat(ground);
  }
}

void StyleTables(const QTextDocument& page) {
  for (QTextFrame* frame : page.rootFrame()->childFrames()) {
    if (auto* table = qobject_cast<QTextTable*>(frame)) StyleTable(*table);
  }
}

/// The caption of a picture is for readers who cannot see it, and for the search.
void AddCaptions(QTextDocument& page) {
  std::vector<Image> images = ImagesOf(page);
  // From the end, so that earlier places do not change.
  std::ranges::reverse(images);
  for (const Image& image : images) {
    QTextCursor cursor(&page);
    cursor.setPosition(image.At + 1);
    QTextBlockFormat above = cursor.blockFormat();
    above.setLineHeight(0, QTextBlockFormat::SingleHeight);
    above.setBottomMargin(0);
    cursor.setBlockFormat(above);
    QTextBlockFormat below = above;
    below.setBottomMargin(2 * Gap);
    QTextCharFormat letters;
    letters.setFontItalic(true);
    letters.setForeground(CaptionColour);
    cursor.insertBlock(below, letters);
    cursor.insertText(image.Format.property(QTextFormat::ImageAltText).toString(), letters);
  }
}

}  // namespace

void StylePage(QTextDocument& page) {
  StyleBlocks(page);
  StyleCode(page);
  StyleTables(page);
  AddCaptions(page);
}

void FitPictures(QTextDocument& page, int width, double ratio) {
  for (const Image& image : ImagesOf(page)) {
    const QString name = image.Format.name();
    QImage picture(":/help/" + name);
    if (picture.isNull()) continue;
    if (picture.width() > width) {
      // A page scales pictures without smoothing.
      const int pixels = std::max(1, static_cast<int>(std::floor(width * ratio)));
      picture = picture.scaledToWidth(std::min(pixels, picture.width()), Qt::SmoothTransformation);
      picture.setDevicePixelRatio(static_cast<double>(picture.width()) / width);
    }
    page.addResource(QTextDocument::ImageResource, page.baseUrl().resolved(QUrl(name)), picture);
  }
  page.markContentsDirty(0, page.characterCount());
}

}  // namespace terramark::helpview
