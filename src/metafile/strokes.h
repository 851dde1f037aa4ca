// Draws lines with the selected pen: one pixel wide by the classic line algorithm, with dashes, or
// wide with round ends and joins.
#pragma once

#include <QPoint>
#include <vector>

#include "metafile/devicecontext.h"

namespace terramark::metafile {

enum class LineShape { Open, Closed };

/// Draws through `points`, in pixels; a closed line returns to its start. A line one pixel wide
/// leaves out its very last pixel. Fewer than two points, or no pen, draw nothing. A wide line
/// throws std::bad_alloc when memory runs out.
void Stroke(DeviceContext& context, const std::vector<QPoint>& points, LineShape shape);

}  // namespace terramark::metafile
