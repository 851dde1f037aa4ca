// The style of the help's pages: spacing, headings, tables, pictures.
#pragma once

class QTextDocument;

namespace terramark::helpview {

/// Styles a page that has just been read from Markdown, and adds the caption below each picture.
/// The text does not change afterwards.
void StylePage(QTextDocument& page);

/// Scales down the pictures that are wider than `width`, in pixels of the page, and restores those
/// that fit again. `ratio` is the number of screen pixels for one of the page.
void FitPictures(QTextDocument& page, int width, double ratio);

}  // namespace terramark::helpview
