// Empties the document.
#pragma once

namespace terramark {

struct Form1;

/// Resets the tables and the header line, destroys all markers and blanks the message bar. The
/// player colours, the fill corners, the file names, the backdrop, the inspector boxes and the
/// current numbers stay as they are.
void ClearMap(Form1& form);

}  // namespace terramark
