// How the pages of the help are set: spacing, headings, tables, pictures.
#pragma once

class QTextDocument;

namespace terramark::helpview {

/// Dresses a page that has just been read from Markdown, and puts the words of each picture below
/// it. The text is final afterwards.
void StylePage(QTextDocument& page);

/// Scales those pictures down that are wider than a width in pixels, and brings those back to their
/// own size that need it no longer. Ratio: pixels of the screen to one of the page.
void FitPictures(QTextDocument& page, int width, double ratio);

}  // namespace terramark::helpview
