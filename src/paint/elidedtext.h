// What is shown of a text that may be of any length.
#pragma once

#include <QString>
#include <string>

namespace terramark::paint {

/// As much of a text as a caption or a box shows: up to 500 characters, one of them an ellipsis
/// where more are left out, at the end or in the middle. Costs the same however long the text is.
QString ElidedText(const std::string& text, Qt::TextElideMode cutAt = Qt::ElideRight);

}  // namespace terramark::paint
