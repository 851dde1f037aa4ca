// The fonts of controls and captions, and drawing a caption.
#pragma once

#include <QFont>
#include <QString>
#include <QStringList>
#include <string>

#include "forms/desktop.h"

class QPainter;
class QRect;

namespace terramark::paint {

/// Arial and the families with the same letter widths that are installed, best first.
const QStringList& TextFamilies();

/// The font of labels and boxes: the text families, 8.25 pt bold, sized by the screen's twips.
QFont TextFont(forms::Desktop& host);

/// The form's own font, on buttons and in the captions of frames: MS Sans Serif of the same size
/// and weight, or else the text families.
QFont FormFont(forms::Desktop& host);

/// The size in pixels of a text as one line in the text font, as far as a caption shows it.
forms::TextExtent ExtentOf(const std::string& text, forms::Desktop& host);

/// Draws one line of text into the rectangle: centred, or from the left with an ellipsis at `cutAt`
/// where it does not fit.
void DrawCaption(QPainter& painter, const QRect& area, const QString& text,
                 Qt::TextElideMode cutAt);

}  // namespace terramark::paint
