// The visible part of a text of any length.
#pragma once

#include <QString>
#include <string>

namespace terramark::paint {

/// The part of a text that a caption or a box shows: at most 500 characters, with an ellipsis at
/// the end or in the middle where more are left out. Takes the same time however long the text is.
QString ElidedText(const std::string& text, Qt::TextElideMode cutAt = Qt::ElideRight);

}  // namespace terramark::paint
