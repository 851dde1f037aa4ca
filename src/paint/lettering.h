// The fonts of controls and captions, and a caption drawn in one.
#pragma once

#include <QFont>
#include <QString>
#include <QStringList>
#include <string>

#include "forms/desktop.h"

class QPainter;
class QRect;

namespace terramark::paint {

/// Arial or what has its measures, the one that is installed first.
const QStringList& TextFamilies();

/// Of labels and boxes: the text families, 8.25 pt bold, sized by the screen's twips.
QFont TextFont(forms::Desktop& host);

/// The form's own, which shows on buttons and in the captions of frames: MS Sans Serif of the same
/// size and weight, or else the text families.
QFont FormFont(forms::Desktop& host);

/// The size of a text in pixels as one line in the text font, as far as a caption shows it.
forms::TextExtent ExtentOf(const std::string& text, forms::Desktop& host);

/// Draws one line of text into the rectangle: in the middle, or from the left with an ellipsis at
/// the place told where it does not fit.
void DrawCaption(QPainter& painter, const QRect& area, const QString& text,
                 Qt::TextElideMode cutAt);

}  // namespace terramark::paint
